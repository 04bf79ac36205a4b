// Runs of characters into stream buffers: the file buffer's direct path writes what its overflow
// would, and every other buffer (a derived file buffer, a program's codecvt) still sees each
// character through its own operations.
#include "lorb_test.h"
#include "scratch_files.h"
#include <__lorb/char_runs.h>
#include <__lorb/library_facets.h>
#include <fstream>
#include <iomanip>
#include <locale>
#include <string>

namespace {

// Counts the characters that reach overflow, then does what the file buffer does.
struct counting_filebuf : std::basic_filebuf<char> {
  int overflows;
  counting_filebuf() : overflows(0) {}
  int_type overflow(int_type c) {
    ++overflows;
    return std::basic_filebuf<char>::overflow(c);
  }
};

// Says a conversion is needed and writes each character twice.
struct doubling_codecvt : std::codecvt<char, char, int> {
  mutable int conversions;
  doubling_codecvt() : std::codecvt<char, char, int>(1), conversions(0) {}
  bool do_always_noconv() const throw() { return false; }
  result do_out(int&, const char* from, const char* from_end, const char*& from_next, char* to,
                char* to_limit, char*& to_next) const {
    ++conversions;
    to_next = to;
    for (from_next = from; from_next < from_end && to_next + 2 <= to_limit; ++from_next) {
      *to_next++ = *from_next;
      *to_next++ = *from_next;
    }
    return ok;
  }
};

const char* file_text(lt::scratch_file& file) { return file.contents(); }

} // namespace

TEST(the_library_classes_are_told_from_derived_ones) {
  std::basic_filebuf<char> plain;
  counting_filebuf derived;
  CHECK(__vel::is_library_filebuf(&plain));
  CHECK(!__vel::is_library_filebuf(&derived));
  const std::codecvt<char, char, int>& own =
      std::use_facet<std::codecvt<char, char, int> >(std::locale::classic());
  doubling_codecvt program_codecvt;
  CHECK(__vel::is_library_codecvt(own));
  CHECK(!__vel::is_library_codecvt(program_codecvt));
}

TEST(a_run_into_a_plain_file_buffer_reaches_the_file) {
  lt::scratch_file file("");
  std::basic_filebuf<char> buffer;
  CHECK(buffer.open(file.path(), std::ios_base::out) != 0);
  CHECK(__vel::put_run(&buffer, "12,345", 6));
  CHECK(__vel::put_copies(&buffer, '*', 3));
  CHECK(__vel::put_copies(&buffer, '*', 0));
  buffer.close();
  CHECK_STR(file_text(file), "12,345***");
}

TEST(a_run_into_an_unattached_file_buffer_fails_at_once) {
  std::basic_filebuf<char> buffer;
  CHECK(!__vel::put_run(&buffer, "abc", 3));
  CHECK(!__vel::put_copies(&buffer, ' ', 2));
}

TEST(a_derived_file_buffer_sees_every_number_character_through_overflow) {
  lt::scratch_file file("");
  counting_filebuf buffer;
  buffer.open(file.path(), std::ios_base::out);
  std::basic_ostream<char> out(&buffer);
  out << std::setw(8) << -12345 << 1.5;
  CHECK_EQ(buffer.overflows, 11);
  buffer.close();
  CHECK_STR(file_text(file), "  -123451.5");
}

TEST(a_program_codecvt_converts_every_number_character) {
  lt::scratch_file file("");
  doubling_codecvt* convert = new doubling_codecvt;
  {
    std::basic_filebuf<char> buffer;
    buffer.pubimbue(std::locale(std::locale(), convert));
    buffer.open(file.path(), std::ios_base::out);
    std::basic_ostream<char> out(&buffer);
    out << 42 << ' ' << true;
    CHECK_EQ(convert->conversions, 4);
  }
  CHECK_STR(file_text(file), "4422  11");
  delete convert;
}

TEST(an_ostreambuf_iterator_over_an_unattached_file_buffer_fails_and_drops_the_rest) {
  std::basic_filebuf<char> buffer;
  std::ostreambuf_iterator<char> out(&buffer);
  out = __vel::put_chars(out, "12", 2);
  CHECK(out.failed());
  out = __vel::put_fill(out, ' ', 3);
  CHECK(out.failed());
}

TEST(numbers_through_an_ofstream_take_the_direct_path_with_the_same_bytes) {
  lt::scratch_file file("");
  {
    std::ofstream out(file.path());
    out << std::setfill('_') << std::setw(9) << std::internal << -1234567 << '|' << std::hex
        << std::showbase << std::setw(8) << 255 << '|' << std::left << std::setw(6) << 2.5 << '|';
  }
  CHECK_STR(file_text(file), "-_1234567|0x____ff|2.5___|");
}
