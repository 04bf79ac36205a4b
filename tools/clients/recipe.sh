# Helpers for the client recipes (tools/clients/<name>.sh), sourced by each of them.
# A recipe is started as `bash <name>.sh SRC OUT` with CXX, CC and RUN in the environment (the
# C++ and C compiler commands with their options, and what starts an i386 program: nothing or
# qemu-i386; recipes leave them unquoted, to be split into words). It
# builds from the unpacked sources in SRC into OUT (exit status not 0: the build failed), then
# runs the client's own tests with run_test, which records each one in OUT/results and keeps what
# it printed in OUT/outputs/<test>.txt for the comparison of the two builds.
set -u
src=$(cd "$1" && pwd)
out=$(mkdir -p "$2" && cd "$2" && pwd)
mkdir -p "$out/outputs"
: > "$out/results"
rm -f "$out/checks"

# compile COMMAND...: a build step, its messages kept in OUT/build.log; a failure ends the recipe.
compile() {
  echo "+ $*" >> "$out/build.log"
  "$@" >> "$out/build.log" 2>&1 || { echo "build step failed: $*" >> "$out/build.log"; exit 1; }
}

# run_test NAME COMMAND...: one test, run in OUT; it passes when it exits with 0. Its output
# (stdout and stderr) is kept with the build's own paths written as <src> and <out>, so that the
# two builds can be compared.
run_test() {
  local name=$1 status
  shift
  (cd "$out" && "$@") > "$out/outputs/$name.raw" 2>&1
  status=$?
  sed -e "s|$out|<out>|g" -e "s|$src|<src>|g" "$out/outputs/$name.raw" > "$out/outputs/$name.txt"
  rm -f "$out/outputs/$name.raw"
  if [ $status = 0 ]; then
    echo "$name pass" >> "$out/results"
  else
    echo "$name fail (exit $status)" >> "$out/results"
  fi
}

# keep_output NAME FILE: a file a test wrote, compared between the builds like printed output.
keep_output() {
  if [ -f "$out/$2" ]; then
    sed -e "s|$out|<out>|g" -e "s|$src|<src>|g" "$out/$2" > "$out/outputs/$1"
  else
    echo "(not written)" > "$out/outputs/$1"
  fi
}

# mask_output NAME SED-SCRIPT: rewrites what a test printed that changes from run to run (times).
mask_output() {
  sed -i -e "$2" "$out/outputs/$1.txt"
}

# count_checks PASSED TOTAL: the checks inside the tests, for the summary, where a test program
# counts its own (left out when the output does not say).
count_checks() {
  if [ -n "$1" ] && [ -n "$2" ]; then echo "$1/$2 checks" > "$out/checks"; fi
}
