#!/bin/bash
# make fuzz: builds the fuzz targets of tests/fuzz/ with an instrumented copy of the library and runs AFL++ on each.
# Usage: tools/fuzz/run.sh BUILD_DIR
#   FUZZ_SECONDS  how long each target is fuzzed (default 600)
#   FUZZ_ONLY     the one target to build and run (e.g. num_get)
#   FUZZ_TIMEOUT_MS  the time one input may take before it counts as a hang (default 1000)
# Everything goes under BUILD_DIR/fuzz: objects, targets, and for each target <name>/corpus (the
# seeds plus what earlier runs found) and <name>/afl (the last run's queue, crashes and hangs).
# Exits non-zero when a target cannot be built, links the GNU C++ library, or has a finding.
set -uo pipefail

build_dir=${1:?usage: tools/fuzz/run.sh BUILD_DIR}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
mkdir -p "$build_dir"
out=$(cd "$build_dir" && pwd)/fuzz
seconds=${FUZZ_SECONDS:-600}
only=${FUZZ_ONLY:-}
timeout_ms=${FUZZ_TIMEOUT_MS:-1000}

die() {
  echo "fuzz: $*" >&2
  exit 2
}

# The same flags the library is built with, plus coverage and the sanitizers. -fsanitize=function
# and vptr read run-time type information, which the library is built without.
lorb_flags=(-m32 -nostdinc++ -fno-exceptions -fno-rtti -fcheck-new -fPIC -I"$root/include" -I"$root/tests")
fuzz_flags=(-O1 -g -fno-omit-frame-pointer -fsanitize=address,undefined -fno-sanitize=function,vptr
            -fno-sanitize-recover=all -fsanitize-coverage=trace-pc-guard)

command -v clang >/dev/null || die "clang is missing (Debian: apt-get install clang libclang-rt-14-dev)"
command -v afl-fuzz >/dev/null || die "afl-fuzz is missing (Debian: apt-get install afl++)"

# Compiles when the object is missing or older than the source or any header it included.
needs_build() { # object source
  [ -f "$1" ] && [ -f "$1.d" ] || return 0
  [ "$2" -nt "$1" ] && return 0
  local dep
  for dep in $(sed -e 's/^[^:]*://' -e 's/\\$//' "$1.d"); do
    [ "$dep" -nt "$1" ] && return 0
  done
  return 1
}

failed_builds=0
compile() { # standard source object
  local std=$1 src=$2 obj=$3
  needs_build "$obj" "$src" || return 0
  if ! clang -std="$std" "${lorb_flags[@]}" "${fuzz_flags[@]}" -w -MMD -MF "$obj.d" -c "$src" -o "$obj"; then
    echo "fuzz: clang could not compile $src" >&2
    rm -f "$obj"
    return 1
  fi
}

# Two compilations at a time: the machine's cores are shared.
run_limited() {
  while [ "$(jobs -rp | wc -l)" -ge 2 ]; do wait -n || failed_builds=1; done
  "$@" &
}

mkdir -p "$out/obj/lib" "$out/obj/targets" "$out/bin"

echo "fuzz: building the instrumented library"
lib_objects=()
for src in "$root"/{runtime,locale,iostream,streambuf,facets,containers}/*.cpp; do
  obj=$out/obj/lib/$(basename "$(dirname "$src")")_$(basename "$src" .cpp).o
  lib_objects+=("$obj")
  run_limited compile gnu++17 "$src" "$obj"
done
while [ "$(jobs -rp | wc -l)" -gt 0 ]; do wait -n || failed_builds=1; done
[ "$failed_builds" = 0 ] || die "the library did not build with clang"

runtime_obj=$out/obj/afl_runtime.o
if [ ! -f "$runtime_obj" ] || [ "$root/tools/fuzz/afl_runtime.c" -nt "$runtime_obj" ]; then
  clang -m32 -O2 -Wall -Wextra -Werror -c "$root/tools/fuzz/afl_runtime.c" -o "$runtime_obj" ||
    die "tools/fuzz/afl_runtime.c did not build"
fi

targets=()
for src in "$root"/tests/fuzz/*_fuzz.cpp; do
  name=$(basename "$src" _fuzz.cpp)
  [ -z "$only" ] || [ "$only" = "$name" ] || continue
  targets+=("$name")
done
[ "${#targets[@]}" -gt 0 ] || die "no target named '${only}' in tests/fuzz"

# A target linking the GNU C++ library would test that library's pieces, not ours.
check_no_gnu_library() { # binary
  local bin=$1 bad
  bad=$(readelf -d "$bin" | grep -E 'NEEDED.*lib(std|sup)c\+\+')
  [ -z "$bad" ] || { echo "fuzz: $bin needs the GNU C++ library: $bad" >&2; return 1; }
  bad=$(ldd "$bin" 2>/dev/null | grep -E 'lib(std|sup)c\+\+')
  [ -z "$bad" ] || { echo "fuzz: $bin loads the GNU C++ library: $bad" >&2; return 1; }
  bad=$(nm "$bin" | grep -E '@(GLIBCXX|CXXABI)_|St7__cxx11' | head -5)
  [ -z "$bad" ] || { echo "fuzz: $bin holds GNU C++ library symbols:" >&2; echo "$bad" >&2; return 1; }
}

for name in "${targets[@]}"; do
  obj=$out/obj/targets/${name}_fuzz.o
  bin=$out/bin/${name}_fuzz
  compile gnu++98 "$root/tests/fuzz/${name}_fuzz.cpp" "$obj" || die "target $name did not build"
  # -nodefaultlibs keeps the C++ driver's libraries out; the sanitizer run-times come with
  # -fsanitize, the C library and libgcc are named.
  clang -m32 -fsanitize=address,undefined "$obj" "${lib_objects[@]}" "$runtime_obj" -lm -o "$bin" ||
    die "target $name did not link"
  check_no_gnu_library "$bin" || die "target $name is not built against Lorb++ alone"
done

# Crashes abort (so afl-fuzz sees a signal); leaks are not looked for while a process runs many
# inputs; an allocation past malloc_limit_mb returns null, which the library reports as out of
# memory and exits on purpose; a process past hard_rss_limit_mb is a finding.
export ASAN_OPTIONS=abort_on_error=1:symbolize=0:detect_leaks=0:allocator_may_return_null=1:malloc_limit_mb=512:hard_rss_limit_mb=1024
export UBSAN_OPTIONS=halt_on_error=1:abort_on_error=1:symbolize=0:print_stacktrace=1
export AFL_NO_UI=1 AFL_SKIP_CPUFREQ=1 AFL_NO_AFFINITY=1 AFL_I_DONT_CARE_ABOUT_MISSING_CRASHES=1
export AFL_FAST_CAL=1 AFL_NO_STARTUP_CALIBRATION=1
symbolizer=$(ls /usr/lib/llvm-*/bin/llvm-symbolizer 2>/dev/null | tail -n 1)

# Shows the sanitizer's report for a reproducer, with source lines.
show_report() { # binary input
  ASAN_OPTIONS=${ASAN_OPTIONS/symbolize=0/symbolize=1} UBSAN_OPTIONS=${UBSAN_OPTIONS/symbolize=0/symbolize=1} \
    ASAN_SYMBOLIZER_PATH=$symbolizer sh -c 'timeout 10 "$0" "$1" 2>&1; true' "$1" "$2" |
    head -n 25 | sed 's/^/    /'
}

stat_of() { # stats-file key
  sed -n "s/^$2 *: *//p" "$1" 2>/dev/null
}

findings=0
for name in "${targets[@]}"; do
  bin=$out/bin/${name}_fuzz
  work=$out/$name
  mkdir -p "$work/corpus"
  cp -n "$root/tests/fuzz/corpus/$name"/* "$work/corpus/" 2>/dev/null
  [ -n "$(ls -A "$work/corpus")" ] || die "no seed in tests/fuzz/corpus/$name"

  # What an earlier run kept must still pass: a corpus input that now fails is a regression.
  if ! timeout 60 "$bin" "$work"/corpus/* >/dev/null 2>&1; then
    for input in "$work"/corpus/*; do
      if ! timeout 10 "$bin" "$input" >/dev/null 2>&1; then
        mkdir -p "$work/regressions"
        mv "$input" "$work/regressions/"
        echo "fuzz: $name: FINDING: corpus input now fails: $work/regressions/$(basename "$input")"
        show_report "$bin" "$work/regressions/$(basename "$input")"
        findings=$((findings + 1))
      fi
    done
  fi

  dictionary=()
  [ -f "$root/tests/fuzz/$name.dict" ] && dictionary=(-x "$root/tests/fuzz/$name.dict")
  rm -rf "$work/afl"
  echo "fuzz: $name: fuzzing for ${seconds}s (log: $work/afl.log)"
  afl-fuzz -i "$work/corpus" -o "$work/afl" -m none -t "$timeout_ms" -V "$seconds" \
    "${dictionary[@]}" -- "$bin" > "$work/afl.log" 2>&1
  status=$?
  stats=$work/afl/default/fuzzer_stats
  if [ ! -f "$stats" ]; then
    echo "fuzz: $name: afl-fuzz did not start (status $status):"
    tail -n 15 "$work/afl.log" | sed 's/^/    /'
    findings=$((findings + 1))
    continue
  fi

  # New queue entries join the corpus for the next run (the seeds are already there).
  for input in "$work"/afl/default/queue/id:*; do
    case "$input" in *orig:*) continue ;; esac
    [ -f "$input" ] && cp "$input" "$work/corpus/$(basename "$input" | tr ':,' '__')"
  done

  echo "fuzz: $name: $(stat_of "$stats" execs_done) executions ($(stat_of "$stats" execs_per_sec)/s)," \
    "$(stat_of "$stats" edges_found) of $(stat_of "$stats" total_edges) edges" \
    "($(stat_of "$stats" bitmap_cvg)), corpus $(stat_of "$stats" corpus_count)," \
    "$(stat_of "$stats" saved_crashes) crashes, $(stat_of "$stats" saved_hangs) hangs"
  for kind in crashes hangs; do
    for input in "$work"/afl/default/$kind/id:*; do
      [ -f "$input" ] || continue
      findings=$((findings + 1))
      echo "fuzz: $name: FINDING ($kind): $input"
      echo "    reproduce: $bin '$input'"
      [ "$kind" = crashes ] && show_report "$bin" "$input"
    done
  done
done

if [ "$findings" -gt 0 ]; then
  echo "fuzz: $findings finding(s); see docs/fuzzing.md for turning one into a regression test"
  exit 1
fi
echo "fuzz: ${#targets[@]} target(s), no finding"
