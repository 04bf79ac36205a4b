// basic_streambuf<char>: its fields and virtual slots, construction and destruction, the default
// virtual operations, the inline fast paths and the bulk transfer loops.
#include "lorb_test.h"
#include "stream_test_support.h"
#include <streambuf>

typedef std::ios_base base;
typedef std::basic_streambuf<char> streambuf_base;

// The base's defaults with the virtual operations opened up for direct calls.
struct open_buffer : streambuf_base {
  using streambuf_base::imbue;
  using streambuf_base::overflow;
  using streambuf_base::pbackfail;
  using streambuf_base::seekoff;
  using streambuf_base::seekpos;
  using streambuf_base::setbuf;
  using streambuf_base::setg;
  using streambuf_base::setp;
  using streambuf_base::showmanyc;
  using streambuf_base::sync;
  using streambuf_base::uflow;
  using streambuf_base::underflow;
  using streambuf_base::xsgetn;
  using streambuf_base::xsputn;
};

// A counting buffer whose uflow hands out a script of values, then end-of-file.
struct scripted_buffer : counting_buffer {
  const int* script;
  int script_length;
  int handed;
  scripted_buffer(const int* values, int length)
      : script(values), script_length(length), handed(0) {}
  int_type uflow() {
    ++uflows;
    return handed < script_length ? script[handed++] : traits_type::eof();
  }
};

// A counting buffer whose overflow accepts a number of characters, recording them, then refuses.
struct accepting_buffer : counting_buffer {
  int room;
  char received[16];
  int received_count;
  explicit accepting_buffer(int accepted) : room(accepted), received_count(0) {}
  int_type overflow(int_type c) {
    ++overflows;
    last_overflow = c;
    if (room == 0)
      return traits_type::eof();
    --room;
    received[received_count++] = static_cast<char>(c);
    return c;
  }
};

// g++ encodes a pointer to a virtual member function as one plus the slot's byte offset.
template <class _Member> long slot_of(_Member member) {
  struct encoded {
    long pointer;
    long adjustment;
  } e;
  memcpy(&e, &member, sizeof e);
  return e.pointer & 1 ? (e.pointer - 1) / static_cast<long>(sizeof(void*)) : -1;
}

TEST(buffer_fields_follow_the_virtual_table_pointer_in_declaration_order) {
  open_buffer b;
  const streambuf_base& s = b;
  CHECK_EQ(offset_in(s, s.__locale), 4L);
  CHECK_EQ(offset_in(s, s.__gbegin), 8L);
  CHECK_EQ(offset_in(s, s.__gnext), 12L);
  CHECK_EQ(offset_in(s, s.__gend), 16L);
  CHECK_EQ(offset_in(s, s.__pbegin), 20L);
  CHECK_EQ(offset_in(s, s.__pnext), 24L);
  CHECK_EQ(offset_in(s, s.__pend), 28L);
  CHECK_EQ(sizeof(streambuf_base), 32u);
}

// Slots 0 and 1 are the two destructor entries g++ makes of the virtual destructor.
TEST(virtual_operations_take_their_slots_in_order) {
  CHECK_EQ(slot_of(&open_buffer::imbue), 2L);
  CHECK_EQ(slot_of(&open_buffer::setbuf), 3L);
  CHECK_EQ(slot_of(&open_buffer::seekoff), 4L);
  CHECK_EQ(slot_of(&open_buffer::seekpos), 5L);
  CHECK_EQ(slot_of(&open_buffer::sync), 6L);
  CHECK_EQ(slot_of(&open_buffer::showmanyc), 7L);
  CHECK_EQ(slot_of(&open_buffer::xsgetn), 8L);
  CHECK_EQ(slot_of(&open_buffer::underflow), 9L);
  CHECK_EQ(slot_of(&open_buffer::uflow), 10L);
  CHECK_EQ(slot_of(&open_buffer::pbackfail), 11L);
  CHECK_EQ(slot_of(&open_buffer::xsputn), 12L);
  CHECK_EQ(slot_of(&open_buffer::overflow), 13L);
}

TEST(construction_takes_the_global_locale_and_nulls_every_area_pointer) {
  std::locale global;
  unsigned refs_before = refs_of(global);
  {
    open_buffer b;
    CHECK(b.__locale.__imp == std::locale::global_);
    CHECK_EQ(refs_of(global), refs_before + 1);
    CHECK(b.__gbegin == 0 && b.__gnext == 0 && b.__gend == 0);
    CHECK(b.__pbegin == 0 && b.__pnext == 0 && b.__pend == 0);
  }
  CHECK_EQ(refs_of(global), refs_before); // destruction drops the locale
}

ISOLATED_TEST(construction_without_a_global_locale_takes_the_classic_one) {
  std::locale::global_ = 0;
  open_buffer b;
  CHECK(b.getloc().__imp == std::locale::classic().__imp);
  CHECK(std::locale::global_ == std::locale::classic().__imp);
}

// Counts into the test's own variables, which outlive it.
struct reporting_buffer : streambuf_base {
  int& syncs;
  int& overflows;
  reporting_buffer(int& sync_count, int& overflow_count)
      : syncs(sync_count), overflows(overflow_count) {}
  int sync() {
    ++syncs;
    return 0;
  }
  int_type overflow(int_type c) {
    ++overflows;
    return c;
  }
  using streambuf_base::pbump;
  using streambuf_base::setp;
};

// A base destructor reaches only the base's own virtuals, so what shows is that nothing was
// synced or drained and that the locale was let go.
TEST(destruction_never_syncs_and_releases_only_the_locale) {
  char area[4] = {'a', 'b', 'c', 'd'};
  int syncs = 0, overflows = 0;
  std::locale global;
  unsigned refs_before = refs_of(global);
  reporting_buffer* b = new reporting_buffer(syncs, overflows);
  b->setp(area, area + 4);
  b->pbump(3);
  CHECK_EQ(refs_of(global), refs_before + 1);
  delete b;
  CHECK_EQ(syncs, 0);
  CHECK_EQ(overflows, 0);
  CHECK_BYTES(area, 4u, "abcd", 4u);
  CHECK_EQ(refs_of(global), refs_before);
}

TEST(default_setbuf_does_nothing_and_returns_this) {
  open_buffer b;
  char space[8];
  CHECK(b.setbuf(space, 8) == &b);
  CHECK(b.pubsetbuf(space, 8) == &b);
  CHECK(b.__gbegin == 0 && b.__pbegin == 0);
}

TEST(seekoff_zero_cur_in_on_the_base_returns_offset_minus_one) {
  open_buffer b;
  std::streampos p = b.seekoff(0, base::cur, base::in);
  CHECK_EQ(static_cast<std::streamoff>(p), -1L);
  CHECK(p == std::streampos(-1));
  CHECK_EQ(static_cast<std::streamoff>(b.pubseekoff(5, base::beg)), -1L);
}

TEST(default_seekpos_returns_the_invalid_position) {
  open_buffer b;
  CHECK_EQ(static_cast<std::streamoff>(b.seekpos(std::streampos(3), base::out)), -1L);
  CHECK_EQ(static_cast<std::streamoff>(b.pubseekpos(std::streampos(0))), -1L);
}

TEST(default_sync_and_showmanyc_return_0) {
  open_buffer b;
  CHECK_EQ(b.sync(), 0);
  CHECK_EQ(b.pubsync(), 0);
  CHECK_EQ(b.showmanyc(), 0L);
}

TEST(default_underflow_uflow_pbackfail_and_overflow_return_eof) {
  open_buffer b;
  CHECK_EQ(b.underflow(), -1);
  CHECK_EQ(b.uflow(), -1);
  CHECK_EQ(b.pbackfail('a'), -1);
  CHECK_EQ(b.pbackfail(-1), -1);
  CHECK_EQ(b.overflow('a'), -1);
  CHECK_EQ(b.overflow(-1), -1);
}

TEST(default_imbue_assigns_the_locale) {
  open_buffer b;
  std::locale german("de_DE.UTF-8");
  b.imbue(german);
  CHECK(b.getloc().__imp == german.__imp);
  CHECK_EQ(refs_of(german), 2u);
}

TEST(sbumpc_on_a_default_buffer_calls_uflow_which_calls_underflow_and_returns_eof) {
  counting_buffer b;
  CHECK_EQ(b.sbumpc(), -1);
  CHECK_EQ(b.uflows, 1);
  CHECK_EQ(b.underflows, 1);
  CHECK_EQ(b.virtual_calls(), 2);
}

TEST(sputc_on_a_default_buffer_calls_overflow_and_returns_eof) {
  counting_buffer b;
  CHECK_EQ(b.sputc('x'), -1);
  CHECK_EQ(b.overflows, 1);
  CHECK_EQ(b.last_overflow, 'x');
  CHECK_EQ(b.virtual_calls(), 1);
}

TEST(xsputn_abc_on_a_default_buffer_returns_0) {
  counting_buffer b;
  CHECK_EQ(b.sputn("abc", 3), 0L);
  CHECK_EQ(b.xsputns, 1);
  CHECK_EQ(b.overflows, 1); // the first refusal ends the loop
  CHECK_EQ(b.last_overflow, 'a');
}

TEST(sbumpc_reads_the_get_area_without_a_virtual_call) {
  counting_buffer b;
  char area[] = {'h', '\xE9'};
  b.setg(area, area, area + 2);
  CHECK_EQ(b.sbumpc(), 'h');
  CHECK_EQ(b.sbumpc(), 0xE9); // as unsigned char, never mistaken for eof
  CHECK(b.gptr() == area + 2);
  CHECK_EQ(b.virtual_calls(), 0);
  CHECK_EQ(b.sbumpc(), -1);
  CHECK_EQ(b.uflows, 1);
}

TEST(sputc_fills_the_put_area_then_hands_overflow_an_unsigned_char) {
  counting_buffer b;
  char area[2];
  b.setp(area, area + 2);
  CHECK_EQ(b.sputc('a'), 'a');
  CHECK_EQ(b.sputc('\xFF'), 0xFF);
  CHECK_EQ(b.virtual_calls(), 0);
  CHECK(b.pptr() == area + 2);
  CHECK_BYTES(area, 2u, "a\xFF", 2u);
  CHECK_EQ(b.sputc('\xE9'), -1);
  CHECK_EQ(b.overflows, 1);
  CHECK_EQ(b.last_overflow, 0xE9);
}

// An underflow that refills the get area from a fixed text, one character per call.
struct refilling_buffer : counting_buffer {
  const char* text;
  char slot;
  explicit refilling_buffer(const char* t) : text(t), slot(0) {}
  int_type underflow() {
    ++underflows;
    if (!*text)
      return traits_type::eof();
    slot = *text++;
    setg(&slot, &slot, &slot + 1);
    return traits_type::to_int_type(slot);
  }
};

TEST(default_uflow_takes_the_character_underflow_made_ready_and_advances) {
  refilling_buffer b("\xF0z");
  CHECK_EQ(b.sbumpc(), 0xF0);
  CHECK_EQ(b.uflows, 1);
  CHECK_EQ(b.underflows, 1);
  CHECK(b.gptr() == b.egptr());
  CHECK_EQ(b.sbumpc(), 'z');
  CHECK_EQ(b.sbumpc(), -1);
  CHECK_EQ(b.uflows, 3);
}

TEST(xsgetn_of_10_over_4_characters_and_2_from_uflow_returns_6) {
  static const int script[] = {'e', 'f'};
  scripted_buffer b(script, 2);
  char area[] = {'a', 'b', 'c', 'd'};
  b.setg(area, area, area + 4);
  char got[10];
  memset(got, '.', sizeof got);
  CHECK_EQ(b.sgetn(got, 10), 6L);
  CHECK_BYTES(got, 10u, "abcdef....", 10u);
  CHECK_EQ(b.uflows, 3); // two characters, then end-of-file
  CHECK(b.gptr() == area + 4);
}

TEST(xsgetn_stores_a_value_that_is_not_its_own_low_byte_as_nul) {
  static const int script[] = {0x141, 0x41, 0xE9, -2, 0x100};
  scripted_buffer b(script, 5);
  char got[6];
  memset(got, '.', sizeof got);
  CHECK_EQ(b.sgetn(got, 6), 5L);
  CHECK_BYTES(got, 6u, "\0A\xE9\0\0.", 6u);
}

TEST(xsgetn_stops_at_n_without_asking_uflow_again) {
  static const int script[] = {'x', 'y', 'z'};
  scripted_buffer b(script, 3);
  char area[] = {'a', 'b'};
  b.setg(area, area, area + 2);
  char got[3];
  CHECK_EQ(b.sgetn(got, 3), 3L);
  CHECK_BYTES(got, 3u, "abx", 3u);
  CHECK_EQ(b.uflows, 1);
  CHECK_EQ(b.sgetn(got, 1), 1L); // the area is empty now: straight to uflow
  CHECK_EQ(got[0], 'y');
  CHECK_EQ(b.uflows, 2);
}

TEST(xsgetn_within_the_get_area_calls_no_virtual) {
  counting_buffer b;
  char area[] = {'1', '2', '3', '4', '5'};
  b.setg(area, area, area + 5);
  char got[3];
  CHECK_EQ(b.sgetn(got, 3), 3L);
  CHECK_BYTES(got, 3u, "123", 3u);
  CHECK(b.gptr() == area + 3);
  CHECK_EQ(b.virtual_calls(), 1); // xsgetn itself
}

TEST(xsgetn_with_null_area_pointers_asks_uflow_for_every_character) {
  static const int script[] = {'p', 'q', 'r'};
  scripted_buffer b(script, 3);
  char got[3];
  CHECK_EQ(b.sgetn(got, 3), 3L);
  CHECK_BYTES(got, 3u, "pqr", 3u);
  CHECK_EQ(b.uflows, 3);
}

TEST(xsputn_fills_the_put_area_then_hands_the_rest_to_overflow) {
  accepting_buffer b(10);
  char area[3];
  b.setp(area, area + 3);
  CHECK_EQ(b.sputn("abcdef", 6), 6L);
  CHECK_BYTES(area, 3u, "abc", 3u);
  CHECK(b.pptr() == area + 3);
  CHECK_EQ(b.overflows, 3);
  CHECK_BYTES(b.received, b.received_count, "def", 3u);
}

TEST(xsputn_returns_a_short_count_when_overflow_refuses) {
  accepting_buffer b(1);
  char area[2];
  b.setp(area, area + 2);
  CHECK_EQ(b.sputn("abcdef", 6), 3L);
  CHECK_BYTES(b.received, b.received_count, "c", 1u);
  CHECK_EQ(b.overflows, 2);
  CHECK_EQ(b.last_overflow, 'd');
}

TEST(xsputn_hands_overflow_each_character_as_unsigned_char) {
  accepting_buffer b(4);
  CHECK_EQ(b.sputn("\xFF\x80", 2), 2L);
  CHECK_EQ(b.last_overflow, 0x80);
  CHECK_BYTES(b.received, b.received_count, "\xFF\x80", 2u);
}

TEST(xsputn_within_the_put_area_calls_no_overflow) {
  counting_buffer b;
  char area[8];
  b.setp(area, area + 8);
  CHECK_EQ(b.sputn("hello", 5), 5L);
  CHECK_BYTES(area, 5u, "hello", 5u);
  CHECK(b.pptr() == area + 5);
  CHECK_EQ(b.overflows, 0);
}

// A buffer whose showmanyc has an estimate of its own.
struct estimating_buffer : counting_buffer {
  std::streamsize showmanyc() {
    ++showmanycs;
    return 7;
  }
};

TEST(in_avail_counts_the_get_area_else_asks_showmanyc) {
  estimating_buffer b;
  CHECK_EQ(b.in_avail(), 7L);
  CHECK_EQ(b.showmanycs, 1);
  char area[] = {'a', 'b', 'c'};
  b.setg(area, area + 1, area + 3);
  CHECK_EQ(b.in_avail(), 2L);
  CHECK_EQ(b.showmanycs, 1);
  b.setg(area, area + 3, area + 3);
  CHECK_EQ(b.in_avail(), 7L);
  CHECK_EQ(b.showmanycs, 2);
}

TEST(sgetc_reads_without_advancing_else_asks_underflow) {
  counting_buffer b;
  char area[] = {'\xC3'};
  b.setg(area, area, area + 1);
  CHECK_EQ(b.sgetc(), 0xC3);
  CHECK_EQ(b.sgetc(), 0xC3);
  CHECK(b.gptr() == area);
  CHECK_EQ(b.virtual_calls(), 0);
  b.gbump(1);
  CHECK_EQ(b.sgetc(), -1);
  CHECK_EQ(b.underflows, 1);
  CHECK_EQ(b.uflows, 0);
}

TEST(snextc_advances_and_reads_the_next_character) {
  counting_buffer b;
  char area[] = {'a', 'b'};
  b.setg(area, area, area + 2);
  CHECK_EQ(b.snextc(), 'b');
  CHECK(b.gptr() == area + 1);
  CHECK_EQ(b.virtual_calls(), 0);
  CHECK_EQ(b.snextc(), -1); // 'b' consumed, then underflow finds nothing
  CHECK(b.gptr() == area + 2);
  CHECK_EQ(b.underflows, 1);
}

TEST(snextc_at_the_end_returns_eof_after_uflow) {
  counting_buffer b;
  CHECK_EQ(b.snextc(), -1);
  CHECK_EQ(b.uflows, 1);
  CHECK_EQ(b.underflows, 1); // the one uflow made; sgetc is not reached
}

TEST(sputbackc_steps_back_over_the_same_character) {
  counting_buffer b;
  char area[] = {'a', '\xE9'};
  b.setg(area, area + 2, area + 2);
  CHECK_EQ(b.sputbackc('\xE9'), 0xE9);
  CHECK(b.gptr() == area + 1);
  CHECK_EQ(b.virtual_calls(), 0);
}

TEST(sputbackc_of_another_character_asks_pbackfail) {
  counting_buffer b;
  char area[] = {'a', 'b'};
  b.setg(area, area + 2, area + 2);
  CHECK_EQ(b.sputbackc('\xF1'), -1);
  CHECK_EQ(b.pbackfails, 1);
  CHECK_EQ(b.last_pbackfail, 0xF1);
  CHECK(b.gptr() == area + 2);
}

TEST(sputbackc_at_the_start_of_the_get_area_asks_pbackfail) {
  counting_buffer b;
  char area[] = {'a'};
  b.setg(area, area, area + 1);
  CHECK_EQ(b.sputbackc('a'), -1);
  CHECK_EQ(b.pbackfails, 1);
  b.setg(0, 0, 0); // and with no area at all
  CHECK_EQ(b.sputbackc('z'), -1);
  CHECK_EQ(b.pbackfails, 2);
  CHECK_EQ(b.last_pbackfail, 'z');
}

TEST(sungetc_steps_back_else_asks_pbackfail_with_eof) {
  counting_buffer b;
  char area[] = {'x', 'y'};
  b.setg(area, area + 1, area + 2);
  CHECK_EQ(b.sungetc(), 'x');
  CHECK(b.gptr() == area);
  CHECK_EQ(b.virtual_calls(), 0);
  CHECK_EQ(b.sungetc(), -1);
  CHECK_EQ(b.pbackfails, 1);
  CHECK_EQ(b.last_pbackfail, -1);
}

TEST(the_public_operations_forward_to_their_virtuals) {
  counting_buffer b;
  char space[4];
  b.pubsetbuf(space, 4);
  b.pubseekoff(1, base::end, base::out);
  b.pubseekpos(std::streampos(2), base::in);
  b.pubsync();
  b.sgetn(space, 0);
  b.sputn(space, 0);
  CHECK_EQ(b.setbufs, 1);
  CHECK_EQ(b.seekoffs, 1);
  CHECK_EQ(b.seekposs, 1);
  CHECK_EQ(b.syncs, 1);
  CHECK_EQ(b.xsgetns, 1);
  CHECK_EQ(b.xsputns, 1);
  CHECK_EQ(b.virtual_calls(), 6);
}

TEST(pubimbue_returns_the_previous_locale_and_calls_imbue) {
  counting_buffer b;
  std::locale global;
  std::locale french("fr_FR.UTF-8");
  std::locale previous = b.pubimbue(french);
  CHECK(previous.__imp == global.__imp);
  CHECK_EQ(b.imbues, 1);
  CHECK(b.getloc().__imp == french.__imp);
}

// An imbue that does not assign: the buffer's locale changes only through the virtual.
struct deaf_buffer : counting_buffer {
  void imbue(const std::locale&) { ++imbues; }
};

TEST(a_buffer_whose_imbue_does_not_assign_keeps_its_locale) {
  deaf_buffer b;
  std::locale global;
  std::locale french("fr_FR.UTF-8");
  std::locale previous = b.pubimbue(french);
  CHECK(previous.__imp == global.__imp);
  CHECK_EQ(b.imbues, 1);
  CHECK(b.getloc().__imp == global.__imp);
}

TEST(getloc_returns_a_copy_of_the_buffer_locale) {
  counting_buffer b;
  unsigned refs_before = refs_of(b.__locale);
  std::locale copy = b.getloc();
  CHECK(copy.__imp == b.__locale.__imp);
  CHECK_EQ(refs_of(copy), refs_before + 1);
}

TEST(the_pointer_operations_set_and_read_the_six_fields) {
  counting_buffer b;
  char get[4], put[4];
  b.setg(get, get + 1, get + 4);
  CHECK(b.eback() == get && b.gptr() == get + 1 && b.egptr() == get + 4);
  CHECK(b.__gbegin == get && b.__gnext == get + 1 && b.__gend == get + 4);
  b.gbump(2);
  CHECK(b.gptr() == get + 3);
  b.setp(put, put + 4);
  CHECK(b.pbase() == put && b.pptr() == put && b.epptr() == put + 4);
  CHECK(b.__pbegin == put && b.__pnext == put && b.__pend == put + 4);
  b.pbump(3);
  CHECK(b.pptr() == put + 3);
}
