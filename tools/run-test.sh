#!/bin/sh
# Runs one test program; under `make memcheck` (LORB_MEMCHECK=1) it runs under valgrind memcheck,
# each process (forked children included) logging apart, and fails on any error in any log.
# LORB_I386_LAUNCHER, where set, is what starts an i386 program on this host (qemu-i386).
[ "${LORB_MEMCHECK:-0}" = 1 ] || exec ${LORB_I386_LAUNCHER:-} "$@"
logs=${LORB_MEMCHECK_LOGS:-/tmp/lorb-memcheck}/$(basename "$1").$$
mkdir -p "$logs"
# Allocation functions a test program defines for itself stay its own under valgrind too.
valgrind --tool=memcheck --leak-check=full --errors-for-leak-kinds=definite \
  --soname-synonyms=somalloc=nouserintercepts \
  --log-file="$logs/%p.log" "$@"
status=$?
# A process that went on to exec another program (system(), popen()) leaves a log with no
# summary: valgrind stopped watching it there.
if grep -l 'ERROR SUMMARY: [1-9]' "$logs"/*.log | grep -q .; then
  echo "memcheck found errors:"
  for log in $(grep -l 'ERROR SUMMARY: [1-9]' "$logs"/*.log); do cat "$log"; done
  exit 1
fi
exit $status
