# Recipe for GNU ddrescue (Debian package gddrescue): ddrescue and ddrescuelog and the package's
# check script, which rescues test files through maps of good and bad blocks and checks the
# copies, the map files and the exit statuses (the map code is vectors, strings and sorting).
. "$(dirname "$0")/recipe.sh"

# C++98 with GNU extensions (ddrescuelog takes std::abs of a long long, which both libraries
# give in that mode). ddrescue needs neither exceptions nor RTTI.
version=$(sed -n 's/^pkgversion=//p' "$src/configure")
mkdir -p "$out/obj"
for f in arg_parser rational non_posix loggers block mapfile mapbook fillbook genbook io \
         rescuebook command_mode main ddrescuelog; do
  compile $CXX -std=gnu++98 -O2 -DPROGVERSION=\"$version\" -c "$src/$f.cc" -o "$out/obj/$f.o"
done
cd "$out/obj" || exit 1
compile $CXX -o "$out/ddrescue.bin" arg_parser.o rational.o non_posix.o loggers.o block.o \
  mapfile.o mapbook.o fillbook.o genbook.o io.o rescuebook.o command_mode.o main.o
compile $CXX -o "$out/ddrescuelog.bin" arg_parser.o block.o mapfile.o ddrescuelog.o

# check.sh runs ./ddrescue and ./ddrescuelog itself: links to the programs, or scripts that start
# them through the launcher where i386 programs need one.
for p in ddrescue ddrescuelog; do
  if [ -z "$RUN" ]; then
    ln -sf "$p.bin" "$out/$p"
  else
    printf '#!/bin/sh\nexec %s "%s" "$@"\n' "$RUN" "$out/$p.bin" > "$out/$p"
    chmod +x "$out/$p"
  fi
done
run_test check sh "$src/testsuite/check.sh" "$src/testsuite" "$version"
