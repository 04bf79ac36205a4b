#!/usr/bin/env bash
# Builds every example with bin/lorb++ and runs it, the way a newcomer would.
set -euo pipefail
build_dir=$(cd "${1:-build}" && pwd)
out_dir="$build_dir/examples-demo"
mkdir -p "$out_dir"
export LORB_BUILD_DIR="$build_dir"
launcher=$(sh tools/i386-host.sh launcher)
for source in examples/*.cpp; do
  name=$(basename "$source" .cpp)
  echo "=== $name: bin/lorb++ -O2 $source -o $out_dir/$name"
  bin/lorb++ -O2 -Wall "$source" -o "$out_dir/$name"
  $launcher "$out_dir/$name"
  echo
done
