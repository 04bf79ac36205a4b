// Where std::pow of complex numbers deliberately differs from GNU: zero raised to a power with a
// positive real part is +0 + 0i here (the limit, taken before the logarithm, whose -infinity would
// give NaN); GNU's exp(y log 0) comes out with the sign of the imaginary part depending on y.
// Other zero bases go through the logarithm on both sides and agree.
#include <complex>
#include <cstdio>

typedef std::complex<double> cdouble;

static void print(const char* what, const cdouble& z) {
  double re = z.real(), im = z.imag();
  // NaN's sign is not part of the comparison.
  printf("%s = (", what);
  if (re != re)
    printf("nan");
  else
    printf("%g", re);
  printf(",");
  if (im != im)
    printf("nan");
  else
    printf("%g", im);
  printf(")\n");
}

int main() {
  print("pow((0,0), (2,1))", std::pow(cdouble(0, 0), cdouble(2, 1)));
  print("pow((0,0), (0.5,-3))", std::pow(cdouble(0, 0), cdouble(0.5, -3)));
  print("pow(0.0, (2,1))", std::pow(0.0, cdouble(2, 1)));
  print("pow(0.0, (3,-2))", std::pow(0.0, cdouble(3, -2)));
  print("pow((0,0), 2.0)", std::pow(cdouble(0, 0), 2.0));
  print("pow((0,0), 3)", std::pow(cdouble(0, 0), 3));
  print("pow((0,0), 0)", std::pow(cdouble(0, 0), 0));
  return 0;
}
