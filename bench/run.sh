#!/usr/bin/env bash
# Builds every bench/*.cpp twice (bin/lorb++ and plain g++ -m32, both -O2), runs each build a few
# times, keeps the best time of each workload and prints both times and their ratio. Then times
# the start-up and exit of a hello world built with each library and of one in C (bench/hello/).
# BENCH_SCALE (default 1) scales the sizes of the input benchmarks; HELLO_RUNS (default 300) is
# how many times each hello world runs in one round.
set -euo pipefail
build_dir=$(cd "${1:-build}" && pwd)
runs=${BENCH_RUNS:-3}
out="$build_dir/bench"
mkdir -p "$out"
export LORB_BUILD_DIR="$build_dir"
launcher=$(sh tools/i386-host.sh launcher)
if [ "$(sh tools/i386-host.sh mode)" != native ]; then
  echo "These timings are emulated (i386 programs run through qemu-i386 on this host): they are"
  echo "not comparable with native runs, and the ratios only roughly so."
fi
if [ -n "${BENCH_SCALE:-}" ]; then
  echo "BENCH_SCALE=$BENCH_SCALE: the input benchmarks run at that fraction of their named sizes."
fi

best_times() { # program -> "workload best_ns" lines
  for _ in $(seq "$runs"); do $launcher "$1"; done | awk '
    { if (!($1 in best) || $2 < best[$1]) best[$1] = $2; if (!($1 in seen)) { seen[$1] = 1; order[n++] = $1 } }
    END { for (i = 0; i < n; i++) print order[i], best[order[i]] }'
}

results="$out/results.tsv"
: > "$results"
printf '%-40s %14s %14s %8s\n' workload "lorb++ ns/op" "GNU ns/op" ratio
for source in bench/*.cpp; do
  name=$(basename "$source" .cpp)
  bin/lorb++ -O2 -Ibench "$source" -o "$out/${name}_lorb"
  g++ -m32 -O2 -fno-exceptions -fno-rtti -Wno-deprecated -Ibench "$source" -o "$out/${name}_gnu"
  best_times "$out/${name}_gnu" > "$out/${name}_gnu.times"
  best_times "$out/${name}_lorb" | awk -v gnu="$out/${name}_gnu.times" '
    BEGIN { while ((getline line < gnu) > 0) { split(line, f, " "); g[f[1]] = f[2] } }
    { printf "%-40s %14.2f %14.2f %8.2f\n", $1, $2, g[$1], (g[$1] > 0 ? $2 / g[$1] : 0) }' |
    tee -a "$results"
done
echo "(ratio = lorb++ time / GNU time; below 1 means Lorb++ is faster)"

# Start-up and exit: each round runs every hello world HELLO_RUNS times in turn, so that a slow
# moment of the host falls on all three alike; the best round of each is kept.
hello_runs=${HELLO_RUNS:-300}
gcc -O2 bench/hello/spawn_timer.c -o "$out/spawn_timer"
bin/lorb++ -O2 bench/hello/hello.cpp -o "$out/hello_lorb"
g++ -m32 -O2 -fno-exceptions -fno-rtti bench/hello/hello.cpp -o "$out/hello_gnu"
gcc -m32 -O2 bench/hello/hello.c -o "$out/hello_c"
echo
printf '%-40s %14s %14s %14s\n' "hello world, start to exit" "lorb++ us/run" "GNU us/run" "C us/run"
for _ in $(seq "$runs"); do
  for which in lorb gnu c; do
    echo "$which $("$out/spawn_timer" "$hello_runs" $launcher "$out/hello_$which")"
  done
done | awk '
  { if (!($1 in best) || $2 < best[$1]) best[$1] = $2 }
  END {
    printf "%-40s %14.1f %14.1f %14.1f\n", "hello_world", best["lorb"], best["gnu"], best["c"]
    printf "(ratios: lorb++/GNU %.2f, lorb++/C %.2f)\n", best["lorb"] / best["gnu"], best["lorb"] / best["c"]
  }' | tee "$out/hello.txt"

# The same table as Markdown and the ratios as a chart, for the README and for reading at a glance.
bash bench/report.sh "$out"
echo "written: $out/results.md and $out/ratios.svg"
