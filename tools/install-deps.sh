#!/usr/bin/env bash
# Installs what building and testing Lorb++ needs on a Debian 12 machine; does nothing when all is there.
set -euo pipefail

packages="g++ g++-multilib cmake make pkg-config valgrind locales libc6-dbg:i386 curl xz-utils dpkg-dev"
# make fuzz: clang for the coverage instrumentation and the sanitizers' i386 run-times, AFL++.
if [ "${1:-}" = fuzz ]; then
  packages="$packages clang libclang-rt-14-dev afl++"
fi
locales_needed="de_DE.UTF-8 fr_FR.UTF-8 en_US.UTF-8 it_IT.UTF-8"

missing=""
if ! dpkg --print-foreign-architectures | grep -qx i386; then
  dpkg --add-architecture i386
  missing="update"
fi
for p in $packages; do
  dpkg -s "$p" >/dev/null 2>&1 || missing="$missing $p"
done
if [ -n "$missing" ]; then
  export DEBIAN_FRONTEND=noninteractive
  # A mirror caught mid-sync fails one index; what the other indexes give is enough.
  apt-get update -q || apt-get update -q || true
  apt-get install -y -q --no-install-recommends $packages
fi

# Named locales the tests use; generate only those not yet present.
have=$(locale -a 2>/dev/null | tr 'A-Z' 'a-z' | sed 's/utf-8/utf8/')
regen=0
for l in $locales_needed; do
  short=$(echo "$l" | tr 'A-Z' 'a-z' | sed 's/utf-8/utf8/')
  if ! echo "$have" | grep -qx "$short"; then
    if ! grep -qx "$l UTF-8" /etc/locale.gen 2>/dev/null; then
      echo "$l UTF-8" >> /etc/locale.gen
    fi
    regen=1
  fi
done
[ "$regen" = 0 ] || locale-gen >/dev/null

# i386 programs: natively where the kernel can, otherwise through qemu-i386, registered with
# binfmt_misc where that is allowed; the tests' launcher starts it explicitly where it is not.
mode=$(sh tools/i386-host.sh mode)
if [ "$mode" != native ] && [ "$mode" != binfmt ]; then
  if ! dpkg -s qemu-user >/dev/null 2>&1; then
    export DEBIAN_FRONTEND=noninteractive
    apt-get install -y -q --no-install-recommends qemu-user ||
      { apt-get update -q || true; apt-get install -y -q --no-install-recommends qemu-user; }
  fi
  bash tools/register-qemu-i386.sh || true
  mode=$(sh tools/i386-host.sh mode)
fi
case "$mode" in
  native) echo "i386 programs run natively on this host" ;;
  binfmt) echo "i386 programs run through the emulator (qemu-i386, registered with binfmt_misc)" ;;
  launcher) echo "i386 programs run through the emulator (qemu-i386, started by the tests' launcher: binfmt_misc registration was not possible)" ;;
  *) echo "this host cannot run i386 programs, not even through qemu-i386" >&2; exit 1 ;;
esac
