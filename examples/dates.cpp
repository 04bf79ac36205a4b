// Writes one date with std::time_put in the classic locale and in a named one (when it is
// installed), then reads a date and a weekday back with std::time_get.
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>
#include <locale>
#include <sstream>
#include <string>

typedef std::time_put<char, std::ostreambuf_iterator<char> > time_writer;
typedef std::time_get<char, std::istreambuf_iterator<char> > time_reader;

static const char pattern[] = "%A, %d %B %Y, %X";

static void print_date(const std::tm& when, const char* label) {
  const time_writer& writer = std::use_facet<time_writer>(std::cout.getloc());
  std::cout << label << ": ";
  writer.put(std::ostreambuf_iterator<char>(std::cout), std::cout, ' ', &when, pattern,
             pattern + std::strlen(pattern));
  std::cout << '\n';
}

// Asks the C library, so that a missing locale is skipped rather than refused by std::locale.
static bool installed(const char* name) {
  bool found = std::setlocale(LC_ALL, name) != 0;
  std::setlocale(LC_ALL, "C");
  return found;
}

int main() {
  std::tm when;
  std::memset(&when, 0, sizeof when);
  when.tm_year = 126; // 2026
  when.tm_mon = 10;   // November
  when.tm_mday = 23;
  when.tm_wday = 1; // Monday
  when.tm_hour = 9;
  when.tm_min = 30;

  // The facets take their day and month names from the environment's LC_TIME.
  setenv("LC_ALL", "C", 1);
  print_date(when, "C");

  const char* named = "de_DE.UTF-8";
  if (installed(named)) {
    setenv("LC_ALL", named, 1);
    std::cout.imbue(std::locale(named));
    print_date(when, named);
    std::cout.imbue(std::locale::classic());
    setenv("LC_ALL", "C", 1);
  } else {
    std::cout << named << ": not installed here\n";
  }

  // Reading back: the date is always month/day/two-digit year, the names are the C ones.
  std::istringstream text("11/23/26 Monday");
  const time_reader& reader = std::use_facet<time_reader>(text.getloc());
  std::ios_base::iostate state = std::ios_base::goodbit;
  std::tm read;
  std::memset(&read, 0, sizeof read);
  std::istreambuf_iterator<char> in(text), end;
  in = reader.get_date(in, end, text, state, &read);
  ++in; // the space between the two
  reader.get_weekday(in, end, text, state, &read);
  std::cout << "read back: month " << read.tm_mon + 1 << ", day " << read.tm_mday << ", year field "
            << read.tm_year << ", weekday " << read.tm_wday
            << (state & std::ios_base::failbit ? " (failed)" : "") << '\n';
  return 0;
}
