#!/usr/bin/env bash
# Builds every example with bin/lorb++ and runs it, the way a newcomer would. An example that reads
# standard input gets examples/input/<name>.txt there; the others get an empty input.
set -euo pipefail
build_dir=$(cd "${1:-build}" && pwd)
out_dir="$build_dir/examples-demo"
mkdir -p "$out_dir"
export LORB_BUILD_DIR="$build_dir"
launcher=$(sh tools/i386-host.sh launcher)
for source in examples/*.cpp; do
  name=$(basename "$source" .cpp)
  input=examples/input/$name.txt
  [ -f "$input" ] || input=/dev/null
  echo "=== $name: bin/lorb++ -O2 $source -o $out_dir/$name"
  bin/lorb++ -O2 -Wall "$source" -o "$out_dir/$name"
  [ "$input" = /dev/null ] || echo "(standard input: $input)"
  $launcher "$out_dir/$name" < "$input"
  echo
done
