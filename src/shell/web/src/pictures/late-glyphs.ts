import plane from "../../node_modules/ionicons/dist/svg/airplane.svg?raw";
import bag from "../../node_modules/ionicons/dist/svg/bag-handle.svg?raw";
import balloon from "../../node_modules/ionicons/dist/svg/balloon.svg?raw";
import gym from "../../node_modules/ionicons/dist/svg/barbell.svg?raw";
import bed from "../../node_modules/ionicons/dist/svg/bed.svg?raw";
import beer from "../../node_modules/ionicons/dist/svg/beer.svg?raw";
import bicycle from "../../node_modules/ionicons/dist/svg/bicycle.svg?raw";
import yacht from "../../node_modules/ionicons/dist/svg/boat.svg?raw";
import bus from "../../node_modules/ionicons/dist/svg/bus.svg?raw";
import coffee from "../../node_modules/ionicons/dist/svg/cafe.svg?raw";
import card from "../../node_modules/ionicons/dist/svg/card.svg?raw";
import down from "../../node_modules/ionicons/dist/svg/caret-down.svg?raw";
import up from "../../node_modules/ionicons/dist/svg/caret-up.svg?raw";
import message from "../../node_modules/ionicons/dist/svg/chatbubbles.svg?raw";
import pass from "../../node_modules/ionicons/dist/svg/close.svg?raw";
import factory from "../../node_modules/ionicons/dist/svg/construct.svg?raw";
import ear from "../../node_modules/ionicons/dist/svg/ear.svg?raw";
import area from "../../node_modules/ionicons/dist/svg/expand.svg?raw";
import eye from "../../node_modules/ionicons/dist/svg/eye.svg?raw";
import film from "../../node_modules/ionicons/dist/svg/film.svg?raw";
import flower from "../../node_modules/ionicons/dist/svg/flower.svg?raw";
import games from "../../node_modules/ionicons/dist/svg/game-controller.svg?raw";
import family from "../../node_modules/ionicons/dist/svg/git-network.svg?raw";
import gavel from "../../node_modules/ionicons/dist/svg/hammer.svg?raw";
import heartBroken from "../../node_modules/ionicons/dist/svg/heart-dislike.svg?raw";
import heartHalf from "../../node_modules/ionicons/dist/svg/heart-half.svg?raw";
import key from "../../node_modules/ionicons/dist/svg/key.svg?raw";
import land from "../../node_modules/ionicons/dist/svg/leaf.svg?raw";
import place from "../../node_modules/ionicons/dist/svg/location.svg?raw";
import envelope from "../../node_modules/ionicons/dist/svg/mail.svg?raw";
import map from "../../node_modules/ionicons/dist/svg/map.svg?raw";
import medal from "../../node_modules/ionicons/dist/svg/medal.svg?raw";
import news from "../../node_modules/ionicons/dist/svg/newspaper.svg?raw";
import bell from "../../node_modules/ionicons/dist/svg/notifications.svg?raw";
import paw from "../../node_modules/ionicons/dist/svg/paw.svg?raw";
import pizza from "../../node_modules/ionicons/dist/svg/pizza.svg?raw";
import play from "../../node_modules/ionicons/dist/svg/play.svg?raw";
import podium from "../../node_modules/ionicons/dist/svg/podium.svg?raw";
import ribbon from "../../node_modules/ionicons/dist/svg/ribbon.svg?raw";
import rocket from "../../node_modules/ionicons/dist/svg/rocket.svg?raw";
import rose from "../../node_modules/ionicons/dist/svg/rose.svg?raw";
import share from "../../node_modules/ionicons/dist/svg/share-outline.svg?raw";
import shield from "../../node_modules/ionicons/dist/svg/shield-checkmark.svg?raw";
import shirt from "../../node_modules/ionicons/dist/svg/shirt.svg?raw";
import speed from "../../node_modules/ionicons/dist/svg/speedometer.svg?raw";
import store from "../../node_modules/ionicons/dist/svg/storefront.svg?raw";
import sun from "../../node_modules/ionicons/dist/svg/sunny.svg?raw";
import thumb from "../../node_modules/ionicons/dist/svg/thumbs-up.svg?raw";
import clock from "../../node_modules/ionicons/dist/svg/time.svg?raw";
import fall from "../../node_modules/ionicons/dist/svg/trending-down.svg?raw";
import bath from "../../node_modules/ionicons/dist/svg/water.svg?raw";
import wine from "../../node_modules/ionicons/dist/svg/wine.svg?raw";
import type { LateGlyph } from "./icons";

/* One file a glyph: the package's whole list would come with the first screens. */

const scale = `<svg viewBox='0 0 512 512'><path d='M232 88a24 24 0 0 1 48 0h132a22 22 0 0 1 20 13l66 151a18 18 0 0 1 1 7 92 92 0 0 1-184 0 18 18 0 0 1 1-7l52-118h-88v266h76v44H156v-44h76V134h-88l52 118a18 18 0 0 1 1 7 92 92 0 0 1-184 0 18 18 0 0 1 1-7l66-151a22 22 0 0 1 20-13zM106 160l-41 92h82zm300 0-41 92h82z' fill-rule='evenodd'/></svg>`;
const van = `<svg viewBox='0 0 512 512'><path d='M16 352V230a40 40 0 0 1 14-30l82-72a56 56 0 0 1 36-14h288a60 60 0 0 1 60 60v178a24 24 0 0 1-24 24h-16a68 68 0 0 0-136 0H216a68 68 0 0 0-136 0H40a24 24 0 0 1-24-24zm76-134h100v-62h-42a20 20 0 0 0-13 5zM148 326a50 50 0 1 1 0 100 50 50 0 0 1 0-100zm240 0a50 50 0 1 1 0 100 50 50 0 0 1 0-100z' fill-rule='evenodd'/></svg>`;
const skyline = `<svg viewBox='0 0 512 512'><path d='M32 464V240a20 20 0 0 1 20-20h92v-84l64-72 64 72v100h56V132a20 20 0 0 1 20-20h112a20 20 0 0 1 20 20v332zm48-196v36h32v-36zm0 84v36h32v-36zm108-176v36h40v-36zm0 88v36h40v-36zm0 88v36h40v-36zm188-192v36h32v-36zm0 84v36h32v-36zm0 84v36h32v-36z' fill-rule='evenodd'/></svg>`;
const ring = `<svg viewBox='0 0 512 512'><path d='M196 32h120l52 62-67 83a164 164 0 1 1-90 0l-67-83zm60 187a114 114 0 1 0 0 228 114 114 0 0 0 0-228z' fill-rule='evenodd'/></svg>`;
const pram = `<svg viewBox='0 0 512 512'><path d='M232 48v176H64a168 168 0 0 1 168-176zm-168 208h312v-48a64 64 0 0 1 64-64h24a24 24 0 0 1 0 48h-24a16 16 0 0 0-16 16v48a144 144 0 0 1-144 144h-72A144 144 0 0 1 64 256z'/><circle cx='160' cy='436' r='44'/><circle cx='340' cy='436' r='44'/></svg>`;
const statuette = `<svg viewBox='0 0 512 512'><path d='M176 24a24 24 0 0 1 24 24v148a32 32 0 0 0 32 32h48a32 32 0 0 0 32-32V48a24 24 0 0 1 48 0v156a80 80 0 0 1-80 80v92h60l20 56H152l20-56h60v-92a80 80 0 0 1-80-80V48a24 24 0 0 1 24-24zM120 452h272v36H120z'/></svg>`;
const tombstone = `<svg viewBox='0 0 512 512'><path d='M112 400V192a144 144 0 0 1 288 0v208zm120-240v44h-44v44h44v100h48V248h44v-44h-44v-44zM72 424h368v48H72z' fill-rule='evenodd'/></svg>`;
const equalizer = `<svg viewBox='0 0 512 512'><path d='M64 240h72v208H64zM168 120h72v328h-72zM272 300h72v148h-72zM376 64h72v384h-72z'/></svg>`;
const handshake = `<svg viewBox='0 0 512 512'><path d='M24 136h84l60 28 56-28h60l-86 76a34 34 0 0 0 46 50l58-48 130 116a32 32 0 0 1-44 46l-8-8a32 32 0 0 1-46 42 32 32 0 0 1-50 28 36 36 0 0 1-56 16L92 332H24zM404 136h84v196h-50L318 196l-54 44 76-88z'/></svg>`;

export const lateDrawings: Record<LateGlyph, string> = {
  play,
  film,
  eye,
  thumb,
  bell,
  shirt,
  bag,
  store,
  factory,
  card,
  map,
  place,
  van,
  bus,
  plane,
  yacht,
  rocket,
  skyline,
  key,
  bed,
  bath,
  area,
  land,
  speed,
  shield,
  gavel,
  scale,
  ear,
  handshake,
  news,
  fall,
  up,
  down,
  medal,
  ribbon,
  podium,
  statuette,
  envelope,
  ring,
  rose,
  wine,
  message,
  pass,
  heartBroken,
  heartHalf,
  pram,
  flower,
  balloon,
  family,
  tombstone,
  share,
  clock,
  coffee,
  pizza,
  gym,
  bicycle,
  games,
  beer,
  sun,
  paw,
  equalizer,
};
