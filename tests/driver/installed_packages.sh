#!/bin/sh
# Installs the library into a scratch prefix and builds three projects against it by the
# documented means alone: a CMake project through find_package, an ordinary CMake project through
# the toolchain file, and a Makefile project through pkg-config. Each program must run, print
# the right words, and link liblorb++ (or carry it inside itself), never the GNU C++ library.
set -e
build_dir=$1 projects=$2 work=$3/packages
rm -rf "$work"
mkdir -p "$work"
prefix=$work/prefix
cmake --install "$build_dir" --prefix "$prefix" >/dev/null
cp -r "$projects" "$work/projects"
unset LORB_BUILD_DIR
want=$(printf 'be 2\nnot 1\nor 1\nto 2')

runs_and_links() { # program, what it must need ("shared" or "static")
  out=$(${LORB_I386_LAUNCHER:-} "$1")
  [ "$out" = "$want" ] || { echo "$1 printed:"; echo "$out"; exit 1; }
  needed=$(readelf -d "$1" | awk '/NEEDED/ {print $5}')
  if echo "$needed" | grep -q 'libstdc++'; then echo "$1 links the GNU C++ library"; exit 1; fi
  if [ "$2" = shared ]; then
    # By its soname through pkg-config or the CMake package, by its full path through the driver.
    echo "$needed" | grep -qx "\[\($prefix/lib/\)\{0,1\}liblorb++.so.1\]" ||
      { echo "$1 does not need liblorb++: $needed"; exit 1; }
  else
    ! echo "$needed" | grep -q 'liblorb++' || { echo "$1 needs liblorb++.so: $needed"; exit 1; }
    nm "$1" | grep -q ' T _Znwj$' || { echo "$1 does not carry the library"; exit 1; }
  fi
}

# The CMake package, found through the prefix.
cmake -S "$work/projects/cmake_package" -B "$work/package-build" -DCMAKE_PREFIX_PATH="$prefix" \
  >"$work/package.log" 2>&1 || { cat "$work/package.log"; exit 1; }
cmake --build "$work/package-build" >>"$work/package.log" 2>&1 || { cat "$work/package.log"; exit 1; }
runs_and_links "$work/package-build/words" shared
runs_and_links "$work/package-build/words_static" static
echo "find_package: words and words_static build and run"

# The toolchain file, on a project that names nothing of the library.
cmake -S "$work/projects/cmake_plain" -B "$work/toolchain-build" \
  -DCMAKE_TOOLCHAIN_FILE="$prefix/share/lorb++/toolchain.cmake" \
  >"$work/toolchain.log" 2>&1 || { cat "$work/toolchain.log"; exit 1; }
cmake --build "$work/toolchain-build" >>"$work/toolchain.log" 2>&1 || { cat "$work/toolchain.log"; exit 1; }
runs_and_links "$work/toolchain-build/words" shared
out=$(${LORB_I386_LAUNCHER:-} "$work/toolchain-build/shouted")
[ "$out" = "QUIET 4" ] || { echo "shouted printed '$out'"; exit 1; }
echo "toolchain: a C and C++ project builds and runs"

# pkg-config, in a Makefile; its flags are exactly what the driver adds.
PKG_CONFIG_PATH="$prefix/lib/pkgconfig" make -s -C "$work/projects/make_pkgconfig" \
  >"$work/make.log" 2>&1 || { cat "$work/make.log"; exit 1; }
runs_and_links "$work/projects/make_pkgconfig/words" shared
printf '#!/bin/sh\necho "$@"\n' > "$work/print-args"
chmod +x "$work/print-args"
from_driver=$(LORB_CXX="$work/print-args" "$prefix/bin/lorb++" prog.cpp)
from_pkg_config=$(PKG_CONFIG_PATH="$prefix/lib/pkgconfig" pkg-config --cflags --libs lorb++)
sorted() { echo "$1" | tr ' ' '\n' | grep -v -e '^prog.cpp$' -e '^$' | sort -u; }
if [ "$(sorted "$from_driver")" != "$(sorted "$from_pkg_config")" ]; then
  echo "pkg-config and the driver disagree:"; echo "driver:     $from_driver"
  echo "pkg-config: $from_pkg_config"; exit 1
fi
echo "pkg-config: a Makefile project builds and runs, with the driver's own flags"
