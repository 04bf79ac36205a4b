// Textbook exercises over records: sorting with comparison objects, grouping in
// maps, set algebra on sorted ranges, numeric folds and function adaptors, all
// on generated data.
#include <algorithm>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <numeric>
#include <set>
#include <string>
#include <utility>
#include <vector>

struct student {
  std::string name;
  int year;
  int score;
};

static unsigned state = 2024;
static unsigned draw(unsigned limit) {
  state = state * 1103515245u + 12345u;
  return (state >> 8) % limit;
}

static std::string make_name() {
  static const char* syllables[] = {"ka", "lo", "mi", "ra", "to", "ve", "su", "ne"};
  std::string name;
  unsigned parts = 1 + draw(3);
  for (unsigned i = 0; i < parts; ++i)
    name += syllables[draw(8)];
  return name;
}

struct by_score_then_name {
  bool operator()(const student& a, const student& b) const {
    if (a.score != b.score)
      return a.score > b.score;
    return a.name < b.name;
  }
};

struct by_year {
  bool operator()(const student& a, const student& b) const { return a.year < b.year; }
};

struct score_of : std::unary_function<student, int> {
  int operator()(const student& s) const { return s.score; }
};

static void print_students(const char* title, const std::vector<student>& v) {
  std::cout << title << ":";
  for (std::vector<student>::const_iterator it = v.begin(); it != v.end(); ++it)
    std::cout << ' ' << it->name << '/' << it->year << '/' << it->score;
  std::cout << '\n';
}

int main() {
  for (int round = 0; round < 20; ++round) {
    std::vector<student> students;
    unsigned n = draw(40);
    for (unsigned i = 0; i < n; ++i) {
      student s;
      s.name = make_name();
      s.year = 1 + static_cast<int>(draw(4));
      s.score = static_cast<int>(draw(101));
      students.push_back(s);
    }
    std::cout << "round " << round << " with " << n << " students\n";

    std::vector<student> ranked(students);
    std::sort(ranked.begin(), ranked.end(), by_score_then_name());
    print_students("ranked", ranked);

    std::vector<student> by_years(students);
    std::stable_sort(by_years.begin(), by_years.end(), by_year());
    print_students("by year, stable", by_years);

    std::map<int, std::vector<std::string> > names_by_year;
    std::multimap<int, std::string> names_by_score;
    for (std::vector<student>::const_iterator it = students.begin(); it != students.end(); ++it) {
      names_by_year[it->year].push_back(it->name);
      names_by_score.insert(std::make_pair(it->score, it->name));
    }
    for (std::map<int, std::vector<std::string> >::iterator it = names_by_year.begin();
         it != names_by_year.end(); ++it) {
      std::sort(it->second.begin(), it->second.end());
      std::cout << "year " << it->first << ":";
      std::copy(it->second.begin(), it->second.end(),
                std::ostream_iterator<std::string>(std::cout, ","));
      std::cout << '\n';
    }
    std::pair<std::multimap<int, std::string>::iterator, std::multimap<int, std::string>::iterator>
        fifty = names_by_score.equal_range(50);
    std::cout << "scored 50: " << std::distance(fifty.first, fifty.second) << '\n';
    std::multimap<int, std::string>::reverse_iterator top = names_by_score.rbegin();
    if (top != names_by_score.rend())
      std::cout << "top score " << top->first << '\n';

    std::vector<int> scores;
    std::transform(students.begin(), students.end(), std::back_inserter(scores), score_of());
    std::cout << "total " << std::accumulate(scores.begin(), scores.end(), 0) << " passed "
              << std::count_if(scores.begin(), scores.end(),
                               std::bind2nd(std::greater_equal<int>(), 50))
              << " failed "
              << std::count_if(scores.begin(), scores.end(),
                               std::not1(std::bind2nd(std::greater_equal<int>(), 50)))
              << '\n';
    std::vector<int> curved(scores.size());
    std::transform(scores.begin(), scores.end(), curved.begin(), std::bind2nd(std::plus<int>(), 5));
    std::vector<int> differences(curved.size());
    std::adjacent_difference(curved.begin(), curved.end(), differences.begin());
    std::copy(differences.begin(), differences.end(), std::ostream_iterator<int>(std::cout, " "));
    std::cout << '\n';

    std::set<std::string> first_years, good;
    for (std::vector<student>::const_iterator it = students.begin(); it != students.end(); ++it) {
      if (it->year == 1)
        first_years.insert(it->name);
      if (it->score >= 70)
        good.insert(it->name);
    }
    std::vector<std::string> both, either, only_first;
    std::set_intersection(first_years.begin(), first_years.end(), good.begin(), good.end(),
                          std::back_inserter(both));
    std::set_union(first_years.begin(), first_years.end(), good.begin(), good.end(),
                   std::back_inserter(either));
    std::set_difference(first_years.begin(), first_years.end(), good.begin(), good.end(),
                        std::back_inserter(only_first));
    std::cout << "both " << both.size() << " either " << either.size() << " only first "
              << only_first.size() << '\n';
    if (!both.empty())
      std::cout << "first good first-year " << both.front() << '\n';
  }
  return 0;
}
