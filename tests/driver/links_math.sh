#!/bin/sh
# A program that calls <cmath> functions links with the driver, as with g++, and needs the math
# library only because it uses it.
set -e
driver=$1 work=$2/math
mkdir -p "$work"
cat > "$work/prog.cpp" <<'PROG'
#include <cmath>
#include <cstdio>
#include <cstdlib>
int main(int argc, char** argv) {
  double x = argc > 1 ? std::atof(argv[1]) : 2.0;
  float f = static_cast<float>(x);
  std::printf("%.4f %.4f %.1f %.4f\n", std::sqrt(x), std::pow(x, 10.0), std::floor(x + 0.5),
              static_cast<double>(std::pow(f, 2.0f)));
  return 0;
}
PROG
"$driver" -std=c++98 -O2 -Wall "$work/prog.cpp" -o "$work/prog"
out=$(${LORB_I386_LAUNCHER:-} "$work/prog" 2.25)
[ "$out" = "1.5000 3325.2567 2.0 5.0625" ] || { echo "printed '$out'"; exit 1; }
readelf -d "$work/prog" | grep -q 'NEEDED.*\[libm.so.6\]' || { echo "libm not linked"; exit 1; }
# A program that uses no math function does not need the math library.
printf '#include <cstdio>\nint main() { std::puts("plain"); return 0; }\n' > "$work/plain.cpp"
"$driver" -O2 "$work/plain.cpp" -o "$work/plain"
if readelf -d "$work/plain" | grep -q 'NEEDED.*\[libm.so.6\]'; then
  echo "libm linked without a use"; exit 1
fi
echo "math library ok"
