#!/bin/sh
# What the driver answers itself (--version, --help), what it refuses with one line before the
# compiler runs, and the line it adds when the compiler rejects exceptions or type identification.
driver=$1 version=$2 work=$3/options
mkdir -p "$work"
status=0
fail() { echo "$1"; status=1; }

# The compiler is a stand-in that notes each call, so a refusal can be seen not to reach it.
calls=$work/calls
printf '#!/bin/sh\necho "$@" >> "%s"\n[ "$1" = --version ] && echo "stand-in compiler 1.2.3" && echo second line\nexit 0\n' \
  "$calls" > "$work/cc"
chmod +x "$work/cc"
export LORB_CXX="$work/cc"

out=$("$driver" --version) || fail "--version failed"
want=$(printf 'lorb++ %s (Lorb++, the C++98 library for i386 Linux)\nstand-in compiler 1.2.3' "$version")
[ "$out" = "$want" ] || fail "--version printed: $out"

out=$("$driver" --help) || fail "--help failed"
for expected in "Usage: lorb++ [g++ options] file..." \
  "-m32 -nostdinc++ -fno-exceptions -fno-rtti -fcheck-new -isystem" "lorb++/liblorb++.so" "-static" \
  "Not available: -fexceptions and -frtti"; do
  echo "$out" | grep -qF -- "$expected" || fail "--help does not say: $expected"
done

refused() { # option, the exact line
  rm -f "$calls"
  err=$("$driver" "$1" prog.cpp 2>&1 >/dev/null)
  code=$?
  [ $code = 1 ] || fail "$1: exit status $code, not 1"
  [ "$err" = "$2" ] || fail "$1: said '$err'"
  [ ! -f "$calls" ] || fail "$1: the compiler was run"
}
refused -fexceptions "lorb++: -fexceptions is not supported: Lorb++ is built without exceptions; errors are reported and end the program"
refused -fnon-call-exceptions "lorb++: -fnon-call-exceptions is not supported: Lorb++ is built without exceptions; errors are reported and end the program"
refused -frtti "lorb++: -frtti is not supported: Lorb++ is built without run-time type information (typeid, dynamic_cast)"
refused -m64 "lorb++: -m64 is not supported: Lorb++ is a library for 32-bit x86 (-m32) programs"
refused -mx32 "lorb++: -mx32 is not supported: Lorb++ is a library for 32-bit x86 (-m32) programs"
refused -lstdc++ "lorb++: -lstdc++ is not supported: Lorb++ takes the place of the GNU C++ library, which must not be linked as well"
refused -lsupc++ "lorb++: -lsupc++ is not supported: Lorb++ takes the place of the GNU C++ library, which must not be linked as well"

err=$("$driver" 2>&1)
[ $? = 1 ] && [ "$err" = "lorb++: no input files (lorb++ --help tells what the driver adds to $LORB_CXX)" ] ||
  fail "no arguments: said '$err'"

# With the real compiler: its error stays whole and the driver's line follows it.
unset LORB_CXX
printf 'int f(int x) {\n  try { if (x) throw 1; } catch (int) { return 2; }\n  return 0;\n}\nint main() { return f(0); }\n' \
  > "$work/throws.cpp"
printf 'struct B { virtual ~B() {} };\nstruct D : B {};\nint main() { B* b = new D; D* d = dynamic_cast<D*>(b); delete d; return 0; }\n' \
  > "$work/casts.cpp"
printf '#include <typeinfo>\nint main() { return typeid(int).name()[0]; }\n' > "$work/typeid.cpp"
rejected() { # source, the compiler's words, the driver's line
  LC_ALL=C "$driver" -c "$work/$1" -o "$work/$1.o" 2> "$work/$1.err"
  code=$?
  [ $code = 1 ] || fail "$1: exit status $code, not 1"
  grep -qF -- "$2" "$work/$1.err" || fail "$1: the compiler's error is missing: $(cat "$work/$1.err")"
  [ "$(tail -n 1 "$work/$1.err")" = "$3" ] || fail "$1: last line: $(tail -n 1 "$work/$1.err")"
  [ "$(grep -c '^lorb++:' "$work/$1.err")" = 1 ] || fail "$1: not one line from the driver"
}
no_exceptions="lorb++: try, throw and catch are not available: Lorb++ programs have no exceptions; a failing library call reports the error and ends the program"
no_rtti="lorb++: typeid and dynamic_cast are not available: Lorb++ programs are built without run-time type information"
rejected throws.cpp "error: exception handling disabled" "$no_exceptions"
rejected casts.cpp "error: 'dynamic_cast' not permitted with '-fno-rtti'" "$no_rtti"
rejected typeid.cpp "error: cannot use 'typeid' with '-fno-rtti'" "$no_rtti"

# A program the compiler accepts gets no line from the driver, and its warnings still reach the user.
printf 'int main() { int unused; return 0; }\n' > "$work/warns.cpp"
err=$(LC_ALL=C "$driver" -Wall -c "$work/warns.cpp" -o "$work/warns.o" 2>&1) || fail "warns.cpp did not compile"
echo "$err" | grep -q "unused variable" || fail "the compiler's warning was lost: $err"
! echo "$err" | grep -q '^lorb++:' || fail "the driver spoke on a good program: $err"

[ $status = 0 ] && echo "driver options, refusals and explanations ok"
exit $status
