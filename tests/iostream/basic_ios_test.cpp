// basic_ios<char>: its fields, the defaults init gives, the state rule and the exception mask,
// tie, fill, rdbuf, widen, imbue (callbacks before the buffer) and destruction.
#include "lorb_test.h"
#include "stream_test_support.h"
#include <ios>
#include <ostream>

typedef std::ios_base base;

TEST(basic_ios_adds_buffer_tie_and_fill_after_the_ios_base_fields) {
  test_stream s(0);
  const std::basic_ios<char>& ios = s;
  CHECK_EQ(offset_in(ios, static_cast<const std::ios_base&>(ios)), 0L);
  CHECK_EQ(offset_in(ios, ios.__buffer), 56L);
  CHECK_EQ(offset_in(ios, ios.__tie), 60L);
  CHECK_EQ(offset_in(ios, ios.__fill), 64L);
  CHECK_EQ(sizeof(std::basic_ios<char>), 68u);
}

TEST(init_over_a_buffer_gives_every_default) {
  counting_buffer buffer;
  test_stream s(&buffer);
  CHECK(s.rdbuf() == &buffer);
  CHECK(s.tie() == 0);
  CHECK_EQ(s.rdstate(), base::goodbit);
  CHECK_EQ(s.exceptions(), base::goodbit);
  CHECK_EQ(s.flags(), 0x1002L);
  CHECK_EQ(s.flags(), base::skipws | base::dec);
  CHECK_EQ(s.width(), 0L);
  CHECK_EQ(s.precision(), 6L);
  CHECK_EQ(s.fill(), ' ');
  CHECK(s.__locale.__imp == std::locale::global_);
  CHECK_EQ(buffer.virtual_calls(), 0);
}

TEST(init_over_a_null_buffer_starts_in_badbit_with_precision_6_and_flags_0x1002) {
  test_stream s(0);
  CHECK(s.rdbuf() == 0);
  CHECK_EQ(s.rdstate(), base::badbit);
  CHECK_EQ(s.precision(), 6L);
  CHECK_EQ(s.flags(), 0x1002L);
  CHECK_EQ(s.width(), 0L);
  CHECK_EQ(s.exceptions(), base::goodbit);
  CHECK(s.tie() == 0);
  CHECK_EQ(s.fill(), ' ');
}

TEST(init_widens_the_fill_in_the_current_locale_then_takes_the_global_locale) {
  late_stream s;
  s.__locale = locale_with_ctype(new shifting_ctype);
  counting_buffer buffer;
  s.start(&buffer);
  CHECK_EQ(s.fill(), '!'); // ' ' widened by the locale the stream held
  CHECK(s.__locale.__imp == std::locale::global_);
  CHECK_EQ(s.widen(' '), ' ');
}

TEST(init_overwrites_every_field_of_a_used_stream) {
  late_stream s;
  s.__width = 9;
  s.__precision = 1;
  s.__flags = base::hex;
  s.__state = base::eofbit;
  s.__exceptions = base::failbit;
  s.__fill = 'x';
  s.__tie = reinterpret_cast<std::basic_ostream<char>*>(&s);
  counting_buffer buffer;
  s.start(&buffer);
  CHECK_EQ(s.width(), 0L);
  CHECK_EQ(s.precision(), 6L);
  CHECK_EQ(s.flags(), 0x1002L);
  CHECK_EQ(s.rdstate(), base::goodbit);
  CHECK_EQ(s.exceptions(), base::goodbit);
  CHECK_EQ(s.fill(), ' ');
  CHECK(s.tie() == 0);
}

static void init_over_a_locale_without_ctype() {
  late_stream s;
  s.__locale = locale_with_ctype(0);
  s.start(0);
}

TEST(init_over_a_locale_without_ctype_reports_facet_not_present_as_bad_cast) {
  EXPECT_ABORT(init_over_a_locale_without_ctype(), "bad_cast: Facet not present\n\n");
}

TEST(a_stream_without_a_buffer_keeps_badbit_on_every_clear_and_setstate) {
  test_stream s(0);
  s.clear();
  CHECK_EQ(s.rdstate(), base::badbit);
  s.clear(base::eofbit);
  CHECK_EQ(s.rdstate(), base::eofbit | base::badbit);
  s.clear(base::goodbit);
  s.setstate(base::failbit);
  CHECK_EQ(s.rdstate(), base::failbit | base::badbit);
  s.setstate(base::goodbit);
  CHECK_EQ(s.rdstate(), base::failbit | base::badbit);
}

TEST(a_stream_with_a_buffer_takes_the_state_it_is_given) {
  counting_buffer buffer;
  test_stream s(&buffer);
  s.clear(base::eofbit);
  CHECK_EQ(s.rdstate(), base::eofbit);
  s.clear();
  CHECK_EQ(s.rdstate(), base::goodbit);
  s.clear(base::badbit);
  CHECK_EQ(s.rdstate(), base::badbit);
}

TEST(setstate_adds_bits_to_the_state) {
  counting_buffer buffer;
  test_stream s(&buffer);
  s.setstate(base::eofbit);
  s.setstate(base::failbit);
  CHECK_EQ(s.rdstate(), base::eofbit | base::failbit);
  CHECK_EQ(s.__state, base::eofbit | base::failbit);
}

TEST(the_state_predicates_read_the_state_bits) {
  counting_buffer buffer;
  test_stream s(&buffer);
  CHECK(s.good() && !s.eof() && !s.fail() && !s.bad());
  CHECK(static_cast<void*>(s) != 0);
  CHECK(!!s);
  s.clear(base::eofbit);
  CHECK(!s.good() && s.eof() && !s.fail() && !s.bad());
  CHECK(static_cast<void*>(s) != 0); // end of file alone is no failure
  s.clear(base::failbit);
  CHECK(!s.good() && !s.eof() && s.fail() && !s.bad());
  CHECK(static_cast<void*>(s) == 0);
  CHECK(!s);
  s.clear(base::badbit);
  CHECK(!s.good() && s.fail() && s.bad());
  CHECK(static_cast<void*>(s) == 0);
}

static void set_failbit_under_mask(std::ios_base::iostate mask) {
  counting_buffer buffer;
  test_stream s(&buffer);
  s.exceptions(mask);
  s.setstate(base::failbit);
}

TEST(failbit_in_the_exception_mask_ends_the_process_when_failbit_is_set) {
  EXPECT_EXIT(set_failbit_under_mask(base::failbit), 1, "Failure in I/O\n");
}

TEST(a_state_bit_outside_the_exception_mask_does_not_end_the_process) {
  EXPECT_CHILD(set_failbit_under_mask(base::eofbit | base::badbit);
               printf("went on"), lt::exits(0), "went on", "");
}

static void clear_to_eofbit_under_mask() {
  counting_buffer buffer;
  test_stream s(&buffer);
  s.exceptions(base::eofbit);
  s.clear(base::eofbit);
}

TEST(clear_with_a_bit_in_the_exception_mask_ends_the_process) {
  EXPECT_EXIT(clear_to_eofbit_under_mask(), 1, "Failure in I/O\n");
}

static void mask_a_bit_the_state_has() {
  counting_buffer buffer;
  test_stream s(&buffer);
  s.setstate(base::eofbit);
  printf("state set;");
  s.exceptions(base::eofbit);
}

TEST(setting_the_exception_mask_over_a_state_that_has_the_bit_ends_the_process) {
  EXPECT_CHILD(mask_a_bit_the_state_has(), lt::exits(1), "state set;", "Failure in I/O\n");
}

static void mask_badbit_without_a_buffer() {
  test_stream s(0);
  s.exceptions(base::badbit);
}

TEST(a_stream_without_a_buffer_ends_the_process_once_badbit_is_masked) {
  EXPECT_EXIT(mask_badbit_without_a_buffer(), 1, "Failure in I/O\n");
}

static void clear_without_a_buffer_under_badbit_mask() {
  counting_buffer buffer;
  test_stream s(&buffer);
  s.exceptions(base::badbit);
  s.rdbuf(0); // clears, and without a buffer the state takes badbit
}

TEST(dropping_the_buffer_under_a_badbit_mask_ends_the_process) {
  EXPECT_EXIT(clear_without_a_buffer_under_badbit_mask(), 1, "Failure in I/O\n");
}

static void put_through_a_refusing_buffer_under_badbit_mask() {
  counting_buffer refusing; // no put area, and the default overflow refuses
  std::basic_ostream<char> os(&refusing);
  os.exceptions(base::badbit);
  printf("before put;");
  os.put('x');
  printf("after put");
}

TEST(a_failing_output_with_its_bit_in_the_exception_mask_ends_the_process) {
  EXPECT_CHILD(put_through_a_refusing_buffer_under_badbit_mask(), lt::exits(1), "before put;",
               "Failure in I/O\n");
}

TEST(exceptions_reads_back_the_mask_it_was_given) {
  counting_buffer buffer;
  test_stream s(&buffer);
  s.exceptions(base::eofbit | base::failbit);
  CHECK_EQ(s.exceptions(), base::eofbit | base::failbit);
  CHECK_EQ(s.__exceptions, base::eofbit | base::failbit);
  CHECK_EQ(s.rdstate(), base::goodbit);
}

TEST(tie_returns_the_previous_tie) {
  test_stream s(0);
  std::basic_ostream<char> first(0);
  std::basic_ostream<char> second(0);
  CHECK(s.tie(&first) == 0);
  CHECK(s.tie() == &first);
  CHECK(s.tie(&second) == &first);
  CHECK(s.__tie == &second);
  CHECK(s.tie(0) == &second);
  CHECK(s.tie() == 0);
}

TEST(fill_returns_the_previous_fill) {
  test_stream s(0);
  CHECK_EQ(s.fill('*'), ' ');
  CHECK_EQ(s.fill(), '*');
  CHECK_EQ(s.__fill, '*');
}

TEST(rdbuf_replaces_the_buffer_and_clears_the_state) {
  counting_buffer buffer;
  test_stream s(0);
  CHECK(s.rdbuf(&buffer) == 0);
  CHECK(s.rdbuf() == &buffer);
  CHECK_EQ(s.rdstate(), base::goodbit);
  s.setstate(base::eofbit);
  CHECK(s.rdbuf(0) == &buffer);
  CHECK_EQ(s.rdstate(), base::badbit);
}

TEST(widen_and_narrow_ask_the_stream_locale) {
  test_stream s(0);
  CHECK_EQ(s.widen('q'), 'q');
  CHECK_EQ(s.narrow('q', '?'), 'q');
  s.imbue(locale_with_ctype(new shifting_ctype));
  CHECK_EQ(s.widen('q'), 'r');
}

TEST(imbue_returns_the_previous_locale_and_gives_the_buffer_the_new_one) {
  counting_buffer buffer;
  test_stream s(&buffer);
  std::locale global;
  unsigned global_refs = refs_of(global); // counts the stream's and the buffer's
  std::locale german("de_DE.UTF-8");
  {
    std::locale previous = s.imbue(german);
    CHECK(previous.__imp == global.__imp);
    CHECK(s.getloc().__imp == german.__imp);
    CHECK(buffer.getloc().__imp == german.__imp);
    CHECK_EQ(buffer.imbues, 1);
    // The stream's reference moved to the result; the locale pubimbue returned was dropped.
    CHECK_EQ(refs_of(global), global_refs - 1);
    CHECK_EQ(refs_of(german), 3u);
  }
  CHECK_EQ(refs_of(global), global_refs - 2);
}

// The buffer's imbue writes into the same log as the callbacks, as function 'b'.
struct imbue_logging_buffer : counting_buffer {
  void imbue(const std::locale& loc) {
    if (event_log.count < 32) {
      callback_call& call = event_log.calls[event_log.count++];
      call.function = 'b';
      call.stream_locale = loc.__imp;
    }
    counting_buffer::imbue(loc);
  }
};

static std::locale::imp* buffer_locale_at_callback = 0;
static void note_buffer_locale(std::ios_base::event, std::ios_base& stream, int) {
  buffer_locale_at_callback = static_cast<std::basic_ios<char>&>(stream).rdbuf()->getloc().__imp;
}

TEST(basic_ios_imbue_calls_the_callbacks_before_the_buffer_imbue) {
  clear_event_log();
  imbue_logging_buffer buffer;
  test_stream s(&buffer);
  std::locale::imp* old_locale = buffer.getloc().__imp;
  s.register_callback(callback_f, 7);
  s.register_callback(note_buffer_locale, 0);
  s.register_callback(callback_g, 8);
  std::locale french("fr_FR.UTF-8");
  s.imbue(french);
  CHECK_EQ(event_log.count, 3);
  CHECK_EQ(event_log.calls[0].function, 'g');
  CHECK_EQ(event_log.calls[0].index, 8);
  CHECK(event_log.calls[0].event == base::imbue_event);
  CHECK(event_log.calls[0].stream_locale == french.__imp); // the stream already has it
  CHECK_EQ(event_log.calls[1].function, 'f');
  CHECK_EQ(event_log.calls[1].index, 7);
  CHECK_EQ(event_log.calls[2].function, 'b');
  CHECK(event_log.calls[2].stream_locale == french.__imp);
  CHECK(buffer_locale_at_callback == old_locale); // the buffer is told after the callbacks
  CHECK(buffer.getloc().__imp == french.__imp);
}

TEST(imbue_on_a_stream_whose_buffer_is_null_changes_only_the_stream_locale) {
  clear_event_log();
  test_stream s(0);
  s.register_callback(callback_f, 2);
  std::locale global;
  std::locale italian("it_IT.UTF-8");
  std::locale previous = s.imbue(italian);
  CHECK(previous.__imp == global.__imp);
  CHECK(s.getloc().__imp == italian.__imp);
  CHECK(s.rdbuf() == 0);
  CHECK_EQ(s.rdstate(), base::badbit);
  CHECK_EQ(s.flags(), 0x1002L);
  CHECK(std::locale::global_ == global.__imp);
  CHECK_EQ(refs_of(italian), 2u);
  CHECK_EQ(event_log.count, 1); // the callbacks still hear of it
  CHECK(event_log.calls[0].stream_locale == italian.__imp);
}

TEST(destroying_a_stream_calls_the_callbacks_and_leaves_the_buffer_alone) {
  clear_event_log();
  counting_buffer buffer;
  char area[4] = {'a', 'b', 0, 0};
  buffer.setp(area, area + 4);
  buffer.pbump(2);
  unsigned buffer_locale_refs = refs_of(buffer.getloc());
  std::ios_base* seen;
  {
    test_stream s(&buffer);
    seen = &s;
    s.register_callback(callback_f, 4);
  }
  CHECK_EQ(event_log.count, 1);
  CHECK(event_log.calls[0].event == base::erase_event);
  CHECK_EQ(event_log.calls[0].index, 4);
  CHECK(event_log.calls[0].stream == seen);
  CHECK_EQ(buffer.virtual_calls(), 0); // neither flushed nor synced
  CHECK(buffer.pptr() == area + 2);
  CHECK(buffer.pbase() == area);
  CHECK_EQ(refs_of(buffer.getloc()), buffer_locale_refs);
}
