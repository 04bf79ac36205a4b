#!/bin/sh
# Runs a differential program built against both libraries and compares what each prints.
# With a third argument naming an existing file, Lorb++'s output must match that file instead
# (a deliberate divergence, written down) and the GNU build only has to run. A fourth argument
# names the same program linked with the static archive: it must print what the shared build does,
# or what X.static.expected holds where the static C library itself answers otherwise.
lorb=$1 gnu=$2 expected=$3 static=$4
run_test="$(dirname "$0")/../../tools/run-test.sh"
# Where i386 programs run under qemu-i386, a program killed by a signal gets one more line from the
# emulator ("qemu: uncaught target signal 6 (Aborted) - core dumped"); it is not the program's.
drop_emulator_notice() { sed '/^qemu: uncaught target signal [0-9]* (.*) - core dumped$/d'; }
# Under memcheck the outputs are compared from a plain run, and a second run under valgrind only
# looks for memory errors: valgrind computes long double with double's precision.
if [ "${LORB_MEMCHECK:-0}" = 1 ]; then
  memcheck_out=$(sh "$run_test" "$lorb" 2>&1)
  case "$memcheck_out" in
  *"memcheck found errors:"*)
    printf '%s\n' "$memcheck_out" | sed -n '/^memcheck found errors:/,$p'
    exit 1
    ;;
  esac
fi
lorb_out=$( (LORB_MEMCHECK=0 sh "$run_test" "$lorb" 2>&1; echo "exit $?") | drop_emulator_notice)
gnu_out=$( (${LORB_I386_LAUNCHER:-} "$gnu" 2>&1; echo "exit $?") | drop_emulator_notice)
if [ -n "$static" ]; then
  static_out=$( (${LORB_I386_LAUNCHER:-} "$static" 2>&1; echo "exit $?") | drop_emulator_notice)
  static_want=$lorb_out
  static_expected=${expected%.expected}.static.expected
  [ -z "$expected" ] || [ ! -f "$static_expected" ] || static_want=$(cat "$static_expected")
  if [ "$static_out" != "$static_want" ]; then
    echo "the static build prints otherwise (expected first, static second):"
    printf '%s\n' "$static_want" > /tmp/lorb_shared.$$
    printf '%s\n' "$static_out" | diff /tmp/lorb_shared.$$ -
    rm -f /tmp/lorb_shared.$$
    exit 1
  fi
fi
if [ -n "$expected" ] && [ -f "$expected" ]; then
  want=$(cat "$expected")
  [ "$lorb_out" = "$want" ] && exit 0
  echo "Lorb++ output differs from the written expectation $expected:"
  printf '%s\n' "$lorb_out" > /tmp/lorb_diff.$$
  printf '%s\n' "$want" | diff - /tmp/lorb_diff.$$
  rm -f /tmp/lorb_diff.$$
  exit 1
fi
[ "$lorb_out" = "$gnu_out" ] && exit 0
echo "outputs differ (GNU first, Lorb++ second):"
printf '%s\n' "$gnu_out" > /tmp/gnu_diff.$$
printf '%s\n' "$lorb_out" | diff /tmp/gnu_diff.$$ -
rm -f /tmp/gnu_diff.$$
exit 1
