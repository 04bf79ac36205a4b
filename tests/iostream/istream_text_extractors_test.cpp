// The character, C-string and string extractors with their own stopping rules, and the copy
// into a stream buffer.
#include "istream_extractors_support.h"

// Characters

TEST(the_character_extractor_skips_blanks_and_takes_one_character) {
  std::istringstream is(" \t x y");
  char c = 0;
  is >> c;
  CHECK_EQ(c, 'x');
  is >> c;
  CHECK_EQ(c, 'y');
  CHECK_EQ(is.rdstate(), good);
}

TEST(the_character_extractor_reads_every_byte_that_is_not_space) {
  for (int byte = 0; byte < 256; ++byte) {
    if (is_c_space(byte))
      continue;
    char text[3] = {' ', static_cast<char>(byte), 0};
    std::istringstream is(std::string(text, 2));
    char c = 0;
    signed char sc = 0;
    unsigned char uc = 0;
    is >> c;
    CHECK_EQ(static_cast<unsigned char>(c), static_cast<unsigned char>(byte));
    is.seekg(0);
    is >> sc;
    CHECK_EQ(static_cast<unsigned char>(sc), static_cast<unsigned char>(byte));
    is.seekg(0);
    is >> uc;
    CHECK_EQ(uc, static_cast<unsigned char>(byte));
    CHECK_EQ(is.rdstate(), good);
  }
}

TEST(the_character_extractor_at_the_end_sets_failbit_but_not_eofbit) {
  const char* inputs[] = {"", "   ", "\n"};
  for (int i = 0; i < 3; ++i) {
    std::istringstream is(inputs[i]);
    char c = 'q';
    is >> c;
    CHECK_EQ(c, 'q');
    CHECK_EQ(is.rdstate(), fail);
  }
}

TEST(the_character_extractor_neither_uses_nor_resets_the_width) {
  std::istringstream is("abc");
  char c = 0;
  is >> std::setw(5) >> c;
  CHECK_EQ(c, 'a');
  CHECK_EQ(is.width(), 5L);
  is >> c;
  CHECK_EQ(c, 'b');
  CHECK_EQ(is.width(), 5L);
  is.clear();
}

TEST(the_character_extractor_without_skipws_takes_a_blank) {
  std::istringstream is(" x");
  is.unsetf(std::ios_base::skipws);
  char c = 0;
  is >> c;
  CHECK_EQ(c, ' ');
}

TEST(the_character_extractor_on_a_stream_that_is_not_good_adds_failbit) {
  std::istringstream is("x");
  is.setstate(eof);
  char c = 'q';
  is >> c;
  CHECK_EQ(c, 'q');
  CHECK_EQ(is.rdstate(), eof | fail);
  std::istream none(0);
  none >> c;
  CHECK_EQ(none.rdstate(), bad | fail);
}

TEST(the_character_extractor_at_the_end_under_a_failbit_mask_ends_the_process) {
  std::istringstream is("");
  is.exceptions(fail);
  char c = 0;
  EXPECT_EXIT(is >> c, 1, "Failure in I/O\n");
}

// C strings

TEST(a_width_of_4_stores_three_characters_and_leaves_the_rest) {
  std::istringstream is("abcdef");
  char buf[16];
  memset(buf, 'z', sizeof buf);
  is >> std::setw(4) >> buf;
  CHECK_STR(buf, "abc");
  CHECK_EQ(is.width(), 0L);
  CHECK_EQ(is.rdstate(), good);
  is >> buf;
  CHECK_STR(buf, "def");
  CHECK_EQ(is.rdstate(), eof);
}

TEST(a_c_string_word_ends_at_a_blank_which_stays) {
  std::istringstream is("  ab\tcd");
  char buf[16];
  is >> buf;
  CHECK_STR(buf, "ab");
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), '\t');
}

TEST(a_c_string_blank_is_given_back_through_pbackfail_without_a_get_area) {
  const char text[] = "ab cd";
  uflow_buffer in(text, 5);
  std::istream is(&in);
  char buf[16];
  is >> buf;
  CHECK_STR(buf, "ab");
  // one for the sentry's first character, one for the blank
  CHECK_EQ(in.pbackfails, 2);
  CHECK_EQ(in.at, 2L);
}

TEST(a_nul_byte_ends_the_c_string_word_and_is_dropped) {
  std::istringstream is(std::string("ab\0cd", 5));
  char buf[16];
  is >> buf;
  CHECK_STR(buf, "ab");
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'c');
}

TEST(a_leading_nul_byte_stores_nothing_and_sets_failbit) {
  std::istringstream is(std::string("\0cd", 3));
  char buf[4] = "zzz";
  is >> buf;
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(is.rdstate(), fail);
  is.clear();
  CHECK_EQ(is.get(), 'c');
}

TEST(a_c_string_at_the_end_sets_eofbit_and_failbit_only_when_nothing_was_stored) {
  std::istringstream a("word"), b(""), c("   ");
  char buf[16] = "zzz";
  a >> buf;
  CHECK_STR(buf, "word");
  CHECK_EQ(a.rdstate(), eof);
  strcpy(buf, "zzz");
  b >> buf;
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(b.rdstate(), eof | fail);
  strcpy(buf, "zzz");
  c >> buf;
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(c.rdstate(), eof | fail);
}

TEST(a_byte_0xff_is_stored_and_not_taken_for_the_end) {
  std::istringstream is("a\xff"
                        "b");
  char buf[8];
  is >> buf;
  CHECK_STR(buf, "a\xff"
                 "b");
  CHECK_EQ(is.rdstate(), eof);
}

TEST(the_c_string_width_is_reset_and_nul_stored_when_the_sentry_fails) {
  std::istringstream is("abc");
  is.setstate(eof);
  char buf[4] = "zzz";
  is >> std::setw(3) >> buf;
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(buf[1], 'z');
  CHECK_EQ(is.width(), 0L);
  CHECK_EQ(is.rdstate(), eof | fail);
  std::istream none(0);
  strcpy(buf, "zzz");
  none.width(9);
  none >> buf;
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(none.width(), 0L);
  CHECK_EQ(none.rdstate(), bad | fail);
}

TEST(a_width_of_1_stores_nothing_and_reads_nothing) {
  std::istringstream is("abc");
  char buf[4] = "zzz";
  is >> std::setw(1) >> buf;
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(is.rdstate(), fail);
  CHECK_EQ(is.width(), 0L);
  is.clear();
  CHECK_EQ(is.get(), 'a');
}

TEST(a_negative_width_does_not_limit_the_c_string) {
  std::istringstream is("abcdefgh");
  char buf[16];
  is.width(-3);
  is >> buf;
  CHECK_STR(buf, "abcdefgh");
  CHECK_EQ(is.width(), 0L);
}

TEST(c_string_words_of_many_lengths_under_many_widths) {
  generator g(3);
  for (int width = 0; width <= 24; ++width) {
    for (int length = 1; length <= 24; ++length) {
      for (int tail = 0; tail < 2; ++tail) {
        std::string text;
        for (int i = 0; i < length; ++i)
          text += c_word_char(g);
        std::string word = text;
        if (tail)
          text += " z";
        std::istringstream is(text);
        char buf[32];
        memset(buf, 'q', sizeof buf);
        is.width(width);
        is >> buf;
        int cap = width > 0 ? width - 1 : 1000;
        int stored = length < cap ? length : cap;
        CHECK_EQ(static_cast<int>(strlen(buf)), stored);
        CHECK(memcmp(buf, word.data(), stored) == 0);
        std::ios_base::iostate expected = good;
        if (length < cap && !tail)
          expected |= eof;
        if (stored == 0)
          expected |= fail;
        if (!CHECK_EQ(is.rdstate(), expected))
          printf("  width %d length %d tail %d\n", width, length, tail);
        CHECK_EQ(is.width(), 0L);
      }
    }
  }
}

TEST(the_end_reaches_the_c_string_space_test_as_the_byte_0xff) {
  // a table where only 0xff is space: the end is then taken for a blank and given back, so no
  // eofbit is set
  static std::ctype_base::mask table[256];
  table[0xff] = std::ctype_base::space;
  std::locale ff_space(std::locale(), new std::ctype<char>(table));
  const char text[] = "abc";
  uflow_buffer in(text, 3);
  std::istream is(&in);
  is.imbue(ff_space);
  char buf[8];
  is >> buf;
  CHECK_STR(buf, "abc");
  CHECK_EQ(is.rdstate(), good);
  // the sentry's give-back of 'a', then the end given back as the end-of-file value
  CHECK_EQ(in.pbackfails, 2);
  CHECK_EQ(in.at, 3L);
}

TEST(the_end_taken_for_a_blank_reaches_pbackfail_as_end_of_file) {
  static std::ctype_base::mask table[256];
  table[0xff] = std::ctype_base::space;
  std::locale ff_space(std::locale(), new std::ctype<char>(table));
  std::istringstream is("ab");
  is.imbue(ff_space);
  char buf[8];
  is >> buf;
  CHECK_STR(buf, "ab");
  CHECK_EQ(is.rdstate(), good);
  // the string buffer's pbackfail(-1) steps back over the last character read
  CHECK_EQ(is.get(), 'b');
}

TEST(the_signed_and_unsigned_c_string_forms_share_the_rules) {
  std::istringstream is("abcdef gh");
  signed char sbuf[8];
  unsigned char ubuf[8];
  is >> std::setw(3) >> sbuf >> ubuf;
  CHECK_STR(reinterpret_cast<char*>(sbuf), "ab");
  CHECK_STR(reinterpret_cast<char*>(ubuf), "cdef");
  CHECK_EQ(is.rdstate(), good);
}

TEST(a_c_string_extractor_without_ctype_reports_the_missing_facet) {
  std::istringstream is("abc");
  is.unsetf(std::ios_base::skipws);
  is.imbue(locale_without<std::ctype<char> >());
  char buf[8];
  EXPECT_ABORT(is >> buf, "bad_cast: Facet not present\n\n");
}

TEST(an_empty_c_string_under_a_failbit_mask_ends_the_process) {
  std::istringstream is("  ");
  is.exceptions(fail);
  char buf[8];
  EXPECT_EXIT(is >> buf, 1, "Failure in I/O\n");
}

// Strings

TEST(string_words_of_every_length_up_to_2000_cross_the_gathering_buffer) {
  generator g(11);
  std::string text;
  std::string words[2001];
  for (int length = 0; length <= 2000; ++length) {
    for (int i = 0; i < length; ++i)
      words[length] += word_char(g);
    text += words[length];
    text += length % 3 ? " " : "\n\t ";
  }
  std::istringstream is(text);
  for (int length = 1; length <= 2000; ++length) {
    std::string s = "old";
    is >> s;
    if (!CHECK_EQ(s.size(), static_cast<size_t>(length)) || !CHECK(s == words[length]))
      printf("  length %d\n", length);
    CHECK_EQ(is.rdstate(), good);
  }
  std::string s = "old";
  is >> s;
  CHECK(s.empty());
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(string_words_at_the_gathering_edges_read_through_uflow) {
  const int lengths[] = {1, 511, 512, 513, 1023, 1024, 1025, 1536, 1537};
  generator g(5);
  for (int i = 0; i < 9; ++i) {
    std::string word;
    for (int k = 0; k < lengths[i]; ++k)
      word += word_char(g);
    std::string text = " " + word + "\n";
    uflow_buffer in(text.data(), static_cast<long>(text.size()));
    std::istream is(&in);
    std::string s;
    is >> s;
    CHECK(s == word);
    CHECK_EQ(is.rdstate(), good);
    CHECK_EQ(in.at, static_cast<long>(text.size() - 1));
    CHECK_EQ(in.pbackfails, 2);
  }
}

TEST(a_string_word_at_the_end_sets_eofbit) {
  std::istringstream is("  last");
  std::string s;
  is >> s;
  CHECK(s == "last");
  CHECK_EQ(is.rdstate(), eof);
}

TEST(a_string_with_nothing_to_take_is_cleared_and_gets_failbit) {
  std::istringstream is(" \n ");
  std::string s = "old";
  is >> s;
  CHECK(s.empty());
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(a_string_is_left_alone_when_the_sentry_fails) {
  std::istringstream is("word");
  is.setstate(eof);
  std::string s = "old";
  is >> s;
  CHECK(s == "old");
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(the_string_width_limits_the_word) {
  generator g(9);
  std::string word;
  for (int k = 0; k < 1500; ++k)
    word += word_char(g);
  for (int width = 1; width <= 1500; width += 37) {
    std::istringstream is(word + " next");
    std::string s;
    is.width(width);
    is >> s;
    CHECK(s == word.substr(0, width));
    CHECK(!is.fail());
    is.width(0);
    if (width < 1500) {
      std::string rest;
      is >> rest;
      CHECK(rest == word.substr(width));
    }
  }
}

TEST(nul_bytes_are_part_of_a_string_word) {
  std::istringstream is(std::string("a\0b c", 5));
  std::string s;
  is >> s;
  CHECK_BYTES(s.data(), s.size(), "a\0b", 3);
  CHECK_EQ(is.rdstate(), good);
}

TEST(a_string_extractor_without_ctype_reports_the_missing_facet) {
  std::istringstream is("abc");
  is.unsetf(std::ios_base::skipws);
  is.imbue(locale_without<std::ctype<char> >());
  std::string s;
  EXPECT_ABORT(is >> s, "bad_cast: Facet not present\n\n");
}

// Into a stream buffer

TEST(extracting_into_a_stream_buffer_copies_to_the_end) {
  std::istringstream is("abc def\n");
  recording_buffer out;
  is >> &out;
  CHECK_WRITTEN(out, "abc def\n");
  CHECK(!is.fail());
  CHECK_EQ(is.get(), -1);
}

TEST(extracting_into_a_stream_buffer_skips_leading_blanks_as_formatted_input) {
  std::istringstream is(" \t abc");
  recording_buffer out;
  is >> &out;
  CHECK_WRITTEN(out, "abc");
}

TEST(extracting_into_a_stream_buffer_that_refuses_leaves_the_character) {
  std::istringstream is("abcdef");
  full_after_buffer out(3);
  is >> &out;
  CHECK_WRITTEN(out, "abc");
  CHECK(!is.fail());
  CHECK_EQ(is.get(), 'd');
}

TEST(extracting_nothing_into_a_stream_buffer_sets_failbit) {
  std::istringstream is("");
  recording_buffer out;
  is >> &out;
  CHECK(is.fail());
  CHECK_EQ(out.length, 0);
  std::istringstream is2("abc");
  full_after_buffer refusing(0);
  is2 >> &refusing;
  CHECK(is2.fail());
  is2.clear();
  CHECK_EQ(is2.get(), 'a');
}

TEST(extracting_into_a_null_stream_buffer_sets_failbit_and_takes_nothing) {
  std::istringstream is("abc");
  is >> static_cast<std::streambuf*>(0);
  CHECK_EQ(is.rdstate(), fail);
  is.clear();
  CHECK_EQ(is.get(), 'a');
}

TEST(extracting_into_a_stream_buffer_from_a_stream_that_is_not_good_adds_failbit) {
  std::istringstream is("abc");
  is.setstate(eof);
  recording_buffer out;
  is >> &out;
  CHECK_EQ(out.length, 0);
  CHECK_EQ(is.rdstate() & fail, fail);
}
