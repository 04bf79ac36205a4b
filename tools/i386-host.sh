#!/bin/sh
# Tells how this host runs i386 programs. `mode` prints one word: native (the kernel runs them),
# binfmt (the kernel hands them to qemu-i386), launcher (only an explicit qemu-i386 runs them) or
# none; `launcher` prints what must stand before an i386 program's name here (nothing, mostly).
set -u
what=${1:-mode}
work=$(mktemp -d "${TMPDIR:-/tmp}/lorb-i386-probe.XXXXXX") || exit 2
trap 'rm -rf "$work"' EXIT

# The probe prints the machine name the kernel (or the emulator) reports to an i386 process. A
# 64-bit kernel running it natively says what it says to any process; qemu says i686.
cat > "$work/probe.c" <<'PROBE'
#include <stdio.h>
#include <sys/utsname.h>
int main(void) {
  struct utsname u;
  if (uname(&u) != 0)
    return 1;
  puts(u.machine);
  return 0;
}
PROBE
if ! gcc -m32 "$work/probe.c" -o "$work/probe" 2>"$work/gcc.err"; then
  echo "i386-host: cannot build an i386 program (is g++-multilib installed?)" >&2
  cat "$work/gcc.err" >&2
  exit 2
fi

emulator=$(command -v qemu-i386 2>/dev/null || true)
mode=none
if machine=$("$work/probe" 2>/dev/null); then
  if [ "$machine" = "$(uname -m)" ]; then mode=native; else mode=binfmt; fi
elif [ -n "$emulator" ] && "$emulator" "$work/probe" >/dev/null 2>&1; then
  mode=launcher
fi

case "$what" in
  mode) echo "$mode" ;;
  launcher)
    case "$mode" in
      launcher) echo "$emulator" ;;
      none) echo "i386-host: this host cannot run i386 programs" >&2; exit 1 ;;
    esac ;;
  *) echo "usage: i386-host.sh [mode|launcher]" >&2; exit 2 ;;
esac
