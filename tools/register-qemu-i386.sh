#!/usr/bin/env bash
# Registers qemu-i386 with the kernel's binfmt_misc for i386 ELF executables and shared objects,
# so that the kernel starts them through the emulator; keeps a registration already there.
set -euo pipefail
binfmt=/proc/sys/fs/binfmt_misc
emulator=$(command -v qemu-i386)
[ -e "$binfmt/register" ] || mount -t binfmt_misc binfmt_misc "$binfmt"
if [ -e "$binfmt/qemu-i386" ]; then
  grep -qx enabled "$binfmt/qemu-i386" || echo 1 > "$binfmt/qemu-i386"
  exit 0
fi
# The first 20 bytes of a 32-bit little-endian i386 ELF file of type 2 (executable) or 3 (shared
# object); the mask lets the OS/ABI byte vary, and the low bit of the type. F: the kernel opens the
# emulator now, so it is found from any mount namespace or root later.
magic='\x7fELF\x01\x01\x01\x00\x00\x00\x00\x00\x00\x00\x00\x00\x02\x00\x03\x00'
mask='\xff\xff\xff\xff\xff\xfe\xfe\x00\xff\xff\xff\xff\xff\xff\xff\xff\xfe\xff\xff\xff'
printf '%s\n' ":qemu-i386:M::$magic:$mask:$emulator:F" > "$binfmt/register"
