// Sorts a list of numbers, removes the repeats and searches it: the everyday
// algorithms on a vector.
#include <algorithm>
#include <functional>
#include <iostream>
#include <iterator>
#include <numeric>
#include <vector>

static void print(const char* title, const std::vector<int>& v) {
  std::cout << title << ": ";
  // An ostream_iterator writes each element it is given, followed by the
  // separator.
  std::copy(v.begin(), v.end(), std::ostream_iterator<int>(std::cout, " "));
  std::cout << '\n';
}

int main() {
  const int numbers[] = {42, 7, 19, 7, 88, 3, 19, 56, 23, 42, 11};
  std::vector<int> v(numbers, numbers + sizeof numbers / sizeof numbers[0]);
  print("as given", v);

  std::sort(v.begin(), v.end());
  print("sorted", v);

  // unique moves the repeats to the end and returns where they start; erase
  // drops them.
  v.erase(std::unique(v.begin(), v.end()), v.end());
  print("without repeats", v);

  // binary_search and lower_bound need a sorted range and take about log2(n)
  // steps.
  const int wanted[] = {19, 20};
  for (int i = 0; i < 2; ++i) {
    std::vector<int>::iterator at = std::lower_bound(v.begin(), v.end(), wanted[i]);
    std::cout << wanted[i]
              << (std::binary_search(v.begin(), v.end(), wanted[i]) ? " is" : " is not")
              << " there; the first element not below it is at index " << (at - v.begin()) << '\n';
  }

  std::cout << "sum: " << std::accumulate(v.begin(), v.end(), 0) << '\n';
  std::cout << "largest: " << *std::max_element(v.begin(), v.end()) << '\n';

  // Sorting with another comparison: greater<int> puts the largest first.
  std::sort(v.begin(), v.end(), std::greater<int>());
  print("largest first", v);
  return 0;
}
