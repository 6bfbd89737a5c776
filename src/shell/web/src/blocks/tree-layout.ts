import type { TreePerson } from "../protocol";

/** Where somebody stands, in shares of the width. */
export interface Placed {
  person: TreePerson;
  /** the middle */
  at: number;
  width: number;
  /** where the line to the children begins */
  stem: number;
  parent: number | null;
  partner: number | null;
  parentOfSome: boolean;
}

/** The indices of the people, by generation, partners beside each other. */
export function generationsOf(people: TreePerson[]): number[][] {
  const depths = [...new Set(people.map(({ generation = 0 }) => generation))].sort((a, b) => a - b);
  return depths.map((depth) => {
    const here = people.flatMap(({ generation = 0 }, i) => (generation === depth ? [i] : []));
    const order: number[] = [];
    for (const i of here) {
      if (order.includes(i)) continue;
      order.push(i);
      const partner = partnerOf(people, i);
      if (partner !== null && here.includes(partner) && !order.includes(partner)) order.push(partner);
    }
    return order;
  });
}

function known(people: TreePerson[], index: number | undefined): number | null {
  return index !== undefined && index >= 0 && index < people.length ? index : null;
}

function partnerOf(people: TreePerson[], i: number): number | null {
  const told = known(people, people[i]!.beside);
  if (told !== null && told !== i) return told;
  const other = people.findIndex(({ beside }, k) => beside === i && k !== i);
  return other < 0 ? null : other;
}

/** Places everybody: children under their parents as far as there is room, each `width` wide, nobody over another. */
export function placed(people: TreePerson[], generations: number[][], width: number): Placed[] {
  const places: Placed[] = people.map((person, i) => {
    const parent = known(people, person.parent);
    return {
      person,
      at: 0.5,
      width,
      stem: 0.5,
      parent: parent === i ? null : parent,
      partner: partnerOf(people, i),
      parentOfSome: people.some(
        (child) => child.parent === i || (child.parent !== undefined && child.parent === partnerOf(people, i)),
      ),
    };
  });
  for (const generation of generations) {
    const wanted = generation.map((i, k) => wantedAt(places, generation, i, k, width));
    spread(wanted, width).forEach((at, k) => (places[generation[k]!]!.at = at));
    for (const i of generation) {
      const { at, partner } = places[i]!;
      places[i]!.stem = partner !== null && generation.includes(partner) ? (at + places[partner]!.at) / 2 : at;
    }
  }
  return places;
}

function wantedAt(places: Placed[], generation: number[], i: number, k: number, width: number): number {
  const { parent } = places[i]!;
  if (parent === null || generation.includes(parent)) return 0.5 + (k - (generation.length - 1) / 2) * width;
  const siblings = generation.filter((other) => places[other]!.parent === parent);
  return places[parent]!.stem + (siblings.indexOf(i) - (siblings.length - 1) / 2) * width;
}

/** The same order with at least a width between any two, and nobody over the edge. */
function spread(wanted: number[], width: number): number[] {
  const at = [...wanted];
  for (let i = 0; i < at.length; i += 1) {
    at[i] = Math.max(at[i]!, i > 0 ? at[i - 1]! + width : width / 2);
  }
  for (let i = at.length - 1; i >= 0; i -= 1) {
    at[i] = Math.min(at[i]!, i < at.length - 1 ? at[i + 1]! - width : 1 - width / 2);
  }
  return at;
}
