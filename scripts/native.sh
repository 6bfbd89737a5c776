# The program for this computer, in build/native. Sourced, never run.
# shellcheck shell=bash disable=SC2154

# build_native TESTS TARGET: TESTS is ON or OFF; both share one build folder and its objects.
build_native() {
  local launcher=()
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  if [[ ! -f $native_build/build.ninja ]] || ! grep -q "^BACKBEAT_TESTS:BOOL=$1$" "$native_build/CMakeCache.txt"; then
    logged cmake cmake -S "$house" -B "$native_build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      "-DBACKBEAT_TESTS=$1" "${launcher[@]}" || return 1
  fi
  logged native ninja -C "$native_build" -j "$(jobs_at_once)" "$2"
}

# build_bench: the benchmarks, in a folder of their own.
bench_build="$house/build/bench"
build_bench() {
  local launcher=()
  if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
  if [[ ! -f $bench_build/build.ninja ]]; then
    logged cmake-bench cmake -S "$house" -B "$bench_build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DBACKBEAT_TESTS=OFF -DBACKBEAT_BENCH=ON "${launcher[@]}" || return 1
  fi
  logged bench ninja -C "$bench_build" -j "$(jobs_at_once)" backbeat_bench
}
