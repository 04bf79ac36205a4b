// std::getline over the library's own file buffer, which takes each line straight from the C
// library's read-ahead: the same lines, positions and bits as a character at a time.
#include "lorb_test.h"
#include "scratch_files.h"
#include <fstream>
#include <sstream>
#include <string>

namespace {
const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate eof_fail = std::ios_base::eofbit | std::ios_base::failbit;

// The text as lines, each read both from a file and from a string stream, which must agree.
void check_lines_match(const std::string& text, char delim) {
  lt::scratch_file file(text.data(), text.size());
  std::ifstream from_file(file.path());
  std::istringstream from_string(text);
  std::string a = "old", b = "old";
  for (int line = 0; line < 100000; ++line) {
    std::getline(from_file, a, delim);
    std::getline(from_string, b, delim);
    if (!CHECK(a == b) || !CHECK_EQ(from_file.rdstate(), from_string.rdstate()))
      return;
    if (!from_file)
      break;
    CHECK_EQ(from_file.tellg(), from_string.tellg());
  }
}
} // namespace

TEST(lines_and_bits_match_a_character_at_a_time) {
  check_lines_match("one\ntwo\n\nthree", '\n');
  check_lines_match("", '\n');
  check_lines_match("\n", '\n');
  check_lines_match("no newline at all", '\n');
  check_lines_match("a;b;;c;", ';');
  check_lines_match(std::string("nul\0inside\n\0\n", 13), '\n');
  check_lines_match(std::string("\xff\x80\n\xff", 4), '\xff');
}

TEST(lines_longer_than_the_read_ahead_are_read_whole) {
  std::string text;
  for (int length = 0; length < 70000; length = length * 3 + 1) {
    text += std::string(static_cast<size_t>(length), static_cast<char>('a' + length % 26));
    text += '\n';
  }
  text += std::string(200000, 'z'); // the last line without a newline
  check_lines_match(text, '\n');
}

TEST(a_character_given_back_is_read_first) {
  lt::scratch_file file("abc\ndef\n");
  std::ifstream in(file.path());
  CHECK_EQ(in.get(), 'a');
  in.putback('a');
  std::string line;
  std::getline(in, line);
  CHECK(line == "abc");
  CHECK_EQ(in.get(), 'd');
  in.unget();
  std::getline(in, line);
  CHECK(line == "def");
  CHECK_EQ(in.rdstate(), good);
  std::getline(in, line);
  CHECK(line.empty());
  CHECK_EQ(in.rdstate(), eof_fail);
}

TEST(the_last_line_without_a_delimiter_sets_eofbit_only) {
  lt::scratch_file file("first\nlast");
  std::ifstream in(file.path());
  std::string line;
  std::getline(in, line);
  std::getline(in, line);
  CHECK(line == "last");
  CHECK_EQ(in.rdstate(), eof);
}

TEST(reading_goes_on_with_other_operations_where_the_line_ended) {
  lt::scratch_file file("12 line one\n34\n");
  std::ifstream in(file.path());
  int n = 0;
  in >> n;
  std::string rest;
  std::getline(in, rest);
  CHECK_EQ(n, 12);
  CHECK(rest == " line one");
  in >> n;
  CHECK_EQ(n, 34);
}
