// Where uppercase leaves the exponent marker alone: the marker is raised only when it follows the
// decimal point, so a number the C library writes without one ("%.1g" of -5e7 is "-5e+07") keeps
// its lowercase 'e'. GNU raises every marker.
#include <iomanip>
#include <iostream>

int main() {
  std::cout << std::uppercase << std::setprecision(1) << -5e7 << ' ' << 3e-9 << ' ' << 2.5e12
            << '\n';
  std::cout << std::setprecision(3) << 1.5e20 << ' ' << 4e30 << '\n';
  return 0;
}
