#!/bin/sh
# Runs a fuzz target, built against the library as a plain program, over every input of its
# corpus in one process; fails when the target stops on one, or the corpus is empty.
# Usage: replay_corpus.sh RUN_TEST TARGET CORPUS_DIR
run_test=$1 target=$2 corpus=$3
count=$(ls "$corpus" 2>/dev/null | wc -l)
if [ "$count" -eq 0 ]; then
  echo "no input in $corpus"
  exit 1
fi
if ! sh "$run_test" "$target" "$corpus"/*; then
  # Names the inputs that fail, one run each.
  for input in "$corpus"/*; do
    sh "$run_test" "$target" "$input" >/dev/null 2>&1 || echo "$target fails on $input"
  done
  exit 1
fi
echo "$count inputs of $(basename "$corpus") replayed"
