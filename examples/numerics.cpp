// Complex numbers and numeric arrays: the roots of z^5 = 1 (and a check that each is one), then a
// moving average and a few columns of a small table taken with slices of a valarray.
#include <complex>
#include <iomanip>
#include <iostream>
#include <valarray>

int main() {
  const double pi = 3.14159265358979323846;
  const int n = 5;
  std::cout << std::fixed << std::setprecision(4);
  std::cout << "The fifth roots of unity:\n";
  for (int k = 0; k < n; ++k) {
    std::complex<double> root = std::polar(1.0, 2 * pi * k / n);
    std::complex<double> back = std::pow(root, n);
    std::cout << "  " << std::left << std::setw(20) << root << "  to the 5th: " << back << "\n";
  }

  // Twelve months of readings; the average of each three in a row.
  double readings[] = {3, 5, 4, 6, 8, 7, 9, 12, 10, 11, 14, 13};
  std::valarray<double> months(readings, 12);
  std::valarray<double> average = (months.shift(-1) + months + months.shift(1)) / 3.0;
  std::cout << "\nThree-month averages (the ends see a zero beyond the year):\n ";
  for (std::size_t i = 0; i < average.size(); ++i)
    std::cout << ' ' << std::setprecision(1) << average[i];
  std::cout << "\n";

  // The same readings as a table of four quarters by three months: a slice takes a column.
  std::cout << "\nFirst month of each quarter:";
  std::valarray<double> firsts = months[std::slice(0, 4, 3)];
  for (std::size_t i = 0; i < firsts.size(); ++i)
    std::cout << ' ' << firsts[i];
  std::valarray<double> high = months[months > 10.0];
  std::cout << "\nReadings over 10: " << high.size() << ", largest " << months.max() << ", sum "
            << months.sum() << "\n";
  return 0;
}
