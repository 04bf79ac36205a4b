# Recipe for UnitTest++ (Debian package unittest++): the unit-test framework and its own test
# suite (250 tests of the checks, the reporters, the XML output and the string streams it
# formats values with), built without exceptions as the framework allows.
. "$(dirname "$0")/recipe.sh"

# UNITTEST_NO_EXCEPTIONS: failed REQUIRE checks and asserts leave a test through longjmp
# instead of a throw. The POSIX signal translator still throws, so it is kept out: this header,
# included first, stands in for it (its guard, and a guard macro that does nothing), and
# Posix/SignalTranslator.cpp is not built. The suite's signal tests need exceptions and are
# left out by the framework itself under UNITTEST_NO_EXCEPTIONS.
mkdir -p "$out/obj"
printf '#define UNITTEST_SIGNALTRANSLATOR_H\n#define UNITTEST_THROW_SIGNALS_POSIX_ONLY\n' \
  > "$out/no-signal-translator.h"
for f in "$src"/UnitTest++/*.cpp "$src"/UnitTest++/Posix/TimeHelpers.cpp "$src"/tests/*.cpp; do
  object=$out/obj/$(basename "$(dirname "$f")")-$(basename "$f" .cpp).o
  compile $CXX -std=gnu++98 -O2 -DUNITTEST_NO_EXCEPTIONS -include "$out/no-signal-translator.h" \
    -I"$src" -c "$f" -o "$object"
done
compile $CXX -o "$out/TestUnitTest++" "$out"/obj/*.o

# The runner prints failures and a summary, and returns the number of failed tests.
run_test TestUnitTest++ $RUN ./TestUnitTest++
mask_output TestUnitTest++ 's/^Test time: .* seconds\.$/Test time: (varies) seconds./'
# "Success: N tests passed." or "FAILURE: F out of N tests failed (C failures)."
total=$(sed -n -e 's/^Success: \([0-9]*\) tests passed\.$/\1/p' \
  -e 's/^FAILURE: [0-9]* out of \([0-9]*\) tests failed.*/\1/p' "$out/outputs/TestUnitTest++.txt")
failed=$(sed -n 's/^FAILURE: \([0-9]*\) out of .*/\1/p' "$out/outputs/TestUnitTest++.txt")
count_checks "${total:+$((total - ${failed:-0}))}" "$total"
