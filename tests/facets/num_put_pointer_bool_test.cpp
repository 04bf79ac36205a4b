// num_put for const void* (the C library's "%p", padded the other way round, never grouped) and
// for bool (a digit, or the numpunct names under boolalpha; never padded, width left alone).
#include "num_put_test_support.h"

namespace {
const void* const some_pointer = reinterpret_cast<const void*>(0x1234abcd);
} // namespace

TEST(a_pointer_prints_as_the_c_library_prints_it) {
  formatting_stream s;
  CHECK_PUT(s, some_pointer, c_text("%p", some_pointer));
  CHECK_PUT(s, some_pointer, "0x1234abcd");
}

TEST(a_null_pointer_prints_nil_like_the_c_library) {
  formatting_stream s;
  const void* null = 0;
  CHECK_PUT(s, null, c_text("%p", null));
  CHECK_PUT(s, null, "(nil)");
}

TEST(left_pads_a_pointer_before_the_text) {
  formatting_stream s;
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.width(20);
  CHECK_PUT(s, some_pointer, "          0x1234abcd");
  s.width(7);
  CHECK_PUT(s, static_cast<const void*>(0), "  (nil)");
}

TEST(right_pads_a_pointer_after_the_text) {
  formatting_stream s;
  s.fill('*');
  s.setf(std::ios_base::right, std::ios_base::adjustfield);
  s.width(12);
  CHECK_PUT(s, some_pointer, "0x1234abcd**");
}

TEST(internal_no_adjustment_and_mixtures_do_not_pad_a_pointer) {
  const std::ios_base::fmtflags adjustments[] = {0,
                                                 std::ios_base::internal,
                                                 std::ios_base::left | std::ios_base::right,
                                                 std::ios_base::left | std::ios_base::internal,
                                                 std::ios_base::right | std::ios_base::internal,
                                                 std::ios_base::adjustfield};
  for (int i = 0; i < 6; ++i) {
    formatting_stream s;
    s.fill('*');
    s.setf(adjustments[i], std::ios_base::adjustfield);
    s.width(20);
    CHECK_PUT(s, some_pointer, "0x1234abcd");
    CHECK_EQ(s.width(), 0L);
  }
}

TEST(width_is_reset_to_0_after_a_pointer) {
  formatting_stream s;
  s.setf(std::ios_base::right, std::ios_base::adjustfield);
  s.width(11);
  CHECK_PUT(s, some_pointer, "0x1234abcd ");
  CHECK_EQ(s.width(), 0L);
  CHECK_PUT(s, some_pointer, "0x1234abcd");
  s.width(3);
  CHECK_PUT(s, some_pointer, "0x1234abcd");
  CHECK_EQ(s.width(), 0L);
}

TEST(the_flags_do_not_change_a_pointer) {
  formatting_stream s;
  s.setf(std::ios_base::showpos | std::ios_base::showbase | std::ios_base::uppercase |
         std::ios_base::showpoint);
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  CHECK_PUT(s, some_pointer, "0x1234abcd");
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  CHECK_PUT(s, some_pointer, "0x1234abcd");
}

TEST(a_pointer_is_never_grouped) {
  formatting_stream s;
  s.imbue(punctuated("\1", ','));
  CHECK_PUT(s, some_pointer, "0x1234abcd");
}

TEST(a_pointer_pads_with_the_fill_argument) {
  formatting_stream s;
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.width(12);
  array_facet facet;
  char text[32] = {0};
  facet.put(text, s, '-', some_pointer);
  CHECK_STR(text, "--0x1234abcd");
}

TEST(a_refusing_buffer_drops_the_rest_of_a_pointer) {
  formatting_stream s;
  s.buffer.limit = 3;
  buffer_iterator after = std::use_facet<buffer_num_put>(s.getloc())
                              .put(buffer_iterator(&s.buffer), s, ' ', some_pointer);
  CHECK(after.failed());
  CHECK_STR(s.buffer.text.c_str(), "0x1");
  CHECK_EQ(s.buffer.refused, 1L);
}

TEST(a_bool_without_boolalpha_is_one_digit) {
  formatting_stream s;
  CHECK_PUT(s, true, "1");
  CHECK_PUT(s, false, "0");
}

TEST(a_bool_with_boolalpha_writes_true_or_false) {
  formatting_stream s;
  s.setf(std::ios_base::boolalpha);
  CHECK_PUT(s, true, "true");
  CHECK_PUT(s, false, "false");
}

TEST(boolalpha_writes_the_numpunct_names) {
  formatting_stream s;
  s.imbue(punctuated("\1", ',', '.', "yes, indeed", "no"));
  s.setf(std::ios_base::boolalpha);
  CHECK_PUT(s, true, "yes, indeed");
  CHECK_PUT(s, false, "no");
  s.imbue(punctuated("", ',', '.', "", "n"));
  CHECK_PUT(s, true, "");
  s.unsetf(std::ios_base::boolalpha);
  CHECK_PUT(s, true, "1");
}

TEST(a_named_locale_names_booleans_true_and_false) {
  formatting_stream s;
  s.imbue(std::locale("de_DE.UTF-8"));
  s.setf(std::ios_base::boolalpha);
  CHECK_PUT(s, true, "true");
  CHECK_PUT(s, false, "false");
}

TEST(a_bool_is_never_padded_and_the_width_is_kept) {
  formatting_stream s;
  s.fill('*');
  const std::ios_base::fmtflags adjustments[] = {0, std::ios_base::left, std::ios_base::right,
                                                 std::ios_base::internal};
  for (int i = 0; i < 4; ++i) {
    s.setf(adjustments[i], std::ios_base::adjustfield);
    s.width(10);
    s.unsetf(std::ios_base::boolalpha);
    CHECK_PUT(s, true, "1");
    CHECK_EQ(s.width(), 10L);
    s.setf(std::ios_base::boolalpha);
    CHECK_PUT(s, false, "false");
    CHECK_EQ(s.width(), 10L);
  }
}

TEST(a_bool_ignores_the_number_flags) {
  formatting_stream s;
  s.setf(std::ios_base::showpos | std::ios_base::showbase | std::ios_base::uppercase);
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  CHECK_PUT(s, true, "1");
  s.setf(std::ios_base::boolalpha);
  CHECK_PUT(s, true, "true");
}

TEST(a_refusing_buffer_drops_the_rest_of_a_name) {
  formatting_stream s;
  s.setf(std::ios_base::boolalpha);
  s.buffer.limit = 2;
  buffer_iterator after =
      std::use_facet<buffer_num_put>(s.getloc()).put(buffer_iterator(&s.buffer), s, ' ', false);
  CHECK(after.failed());
  CHECK_STR(s.buffer.text.c_str(), "fa");
  CHECK_EQ(s.buffer.refused, 1L);
  s.buffer.text.clear();
  s.buffer.limit = 0;
  after = std::use_facet<buffer_num_put>(s.getloc()).put(buffer_iterator(&s.buffer), s, ' ', true);
  s.unsetf(std::ios_base::boolalpha);
  after = std::use_facet<buffer_num_put>(s.getloc()).put(after, s, ' ', true);
  CHECK(after.failed());
  CHECK_EQ(s.buffer.text.size(), 0u);
  CHECK_EQ(s.buffer.refused, 2L);
}
