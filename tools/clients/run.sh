#!/usr/bin/env bash
# make clients: real programs from Debian 12's source packages, each built with Lorb++ and with
# the GNU library, its own tests run with both builds and the results compared.
# Usage: run.sh BUILD_DIR (the Lorb++ build whose liblorb++.so the client builds use).
set -u
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$(dirname "$here")")
build=$(cd "${1:?usage: run.sh BUILD_DIR}" && pwd)
work=$build/clients
cache=$work/cache
. "$here/fetch.sh"

# Each client: recipe name and Debian source package (the same, so far).
clients=${LORB_CLIENTS:-"tinyxml unittest++ gddrescue"}
known=$here/known-differences

export LORB_BUILD_DIR=$build
export CC="gcc -m32"
# What starts an i386 program on this host: nothing, or qemu-i386 where the kernel cannot.
RUN=$(sh "$root/tools/i386-host.sh" launcher) || exit 1
export RUN
lorb_cxx="$root/bin/lorb++"
gnu_cxx="g++ -m32 -fno-exceptions -fno-rtti"

mkdir -p "$cache"
failed=0
skipped=0
index_refreshed=no
row() {
  printf '%-10s  %-16s  %-5s  %-34s  %s' "$@"
}
summary=$(row client version built "tests passed: lorb / gnu" differences)

# is_known CLIENT TEST: the difference is written down, with its cause, in known-differences.
is_known() {
  awk -v key="$1 $2:" 'index($0, key) == 1 { found = 1 } END { exit !found }' "$known"
}

# passed OUT: the build's tests that passed, of all (the checks inside them, where counted).
passed() {
  if [ -s "$1/checks" ]; then
    cat "$1/checks"
  else
    echo "$(grep -c ' pass$' "$1/results")/$(grep -c . "$1/results") tests"
  fi
}

for name in $clients; do
  echo "== $name"
  if ! fetch_sources_index "$cache" || ! fetch_package "$cache" "$name"; then
    # A package replaced by a point release since the index was kept: look it up afresh once.
    if [ "$index_refreshed" = no ] && [ -s "$cache/Sources" ]; then
      index_refreshed=yes
      fetch_sources_index "$cache" refresh && fetch_package "$cache" "$name"
    else
      false
    fi || {
      echo "$name: download failed, skipped"
      skipped=$((skipped + 1))
      summary="$summary
$(row "$name" - - - "download failed, skipped")"
      continue
    }
  fi
  version=$package_version
  if ! unpack_package "$package_dsc" "$work/$name/src"; then
    echo "$name: cannot unpack $package_dsc"
    failed=1
    continue
  fi

  built=yes
  for lib in lorb gnu; do
    rm -rf "$work/$name/$lib"
    if [ $lib = lorb ]; then cxx=$lorb_cxx; else cxx=$gnu_cxx; fi
    if ! CXX=$cxx bash "$here/$name.sh" "$work/$name/src" "$work/$name/$lib"; then
      echo "$name: the build with $lib failed; the end of $work/$name/$lib/build.log:"
      tail -n 20 "$work/$name/$lib/build.log"
      built=no
    fi
  done
  if [ $built = no ]; then
    failed=1
    summary="$summary
$(row "$name" "$version" no - -)"
    continue
  fi

  # Every test that fails with Lorb++, and every test whose result or output differs from the
  # GNU build's, is a failure of the run unless known-differences explains it.
  differences=0
  explained=0
  lorb=$work/$name/lorb
  gnu=$work/$name/gnu
  counted=" "
  while read -r test result; do
    other=$(awk -v test="$test" '$1 == test { sub(/^[^ ]* /, ""); print }' "$gnu/results")
    if [ "$result" != pass ]; then
      problem="fails with Lorb++ ${result#fail }"
    elif [ "$other" != pass ]; then
      problem="passes with Lorb++ but not with GNU (${other:-not run})"
    else
      continue
    fi
    differences=$((differences + 1))
    counted="$counted$test "
    if is_known "$name" "$test"; then
      explained=$((explained + 1))
      echo "$name: test $test $problem (known)"
    else
      echo "$name: test $test $problem; it printed:"
      tail -n 20 "$lorb/outputs/$test.txt" | sed 's/^/    /'
      failed=1
    fi
  done < "$lorb/results"
  for file in "$lorb"/outputs/* "$gnu"/outputs/*; do
    [ -e "$file" ] || continue
    output=$(basename "$file")
    test=${output%.txt}
    case "$file" in "$gnu"/*) [ -f "$lorb/outputs/$output" ] && continue ;; esac
    case "$counted" in *" $test "*) continue ;; esac
    cmp -s "$lorb/outputs/$output" "$gnu/outputs/$output" && continue
    differences=$((differences + 1))
    if is_known "$name" "$test"; then
      explained=$((explained + 1))
      echo "$name: output $output differs from the GNU build's (known)"
    elif [ ! -f "$gnu/outputs/$output" ] || [ ! -f "$lorb/outputs/$output" ]; then
      echo "$name: output $output comes from one build only"
      failed=1
    else
      echo "$name: output $output differs from the GNU build's (< Lorb++, > GNU):"
      diff "$lorb/outputs/$output" "$gnu/outputs/$output" | head -n 20 | sed 's/^/    /'
      failed=1
    fi
  done
  echo "$name $version: lorb $(passed "$lorb"), gnu $(passed "$gnu"), $differences differences"
  summary="$summary
$(row "$name" "$version" yes "$(passed "$lorb") / $(passed "$gnu")" \
    "$differences ($explained known)")"
done

echo
echo "$summary"
if [ $failed != 0 ]; then
  echo "clients: FAILED (see above; the builds and outputs are in $work)"
  exit 1
fi
if [ $skipped != 0 ]; then
  echo "clients: passed ($skipped skipped: download failed)"
else
  echo "clients: all built, passed and agreed"
fi
