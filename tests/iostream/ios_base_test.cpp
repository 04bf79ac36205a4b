// std::ios_base: the mask values, the position types, the field layout, construction, xalloc,
// iword/pword, the event callbacks, imbue, destruction and throwfailure.
#include "lorb_test.h"
#include "stream_test_support.h"
#include <ios>
#include <new>
#include <stdlib.h>

// Records which blocks are given back while a test watches, to see the order destruction frees.
static void* freed_blocks[8];
static int freed_count = -1; // -1: not watching

void* operator new(size_t size) { return malloc(size ? size : 1); }
void operator delete(void* block) __LORB_NOEXCEPT {
  if (freed_count >= 0 && freed_count < 8)
    freed_blocks[freed_count++] = block;
  free(block);
}
void operator delete(void* block, size_t) __LORB_NOEXCEPT { operator delete(block); }

// ios_base alone, with only its own constructor run.
struct bare_base : std::ios_base {
  bare_base() {}
};

typedef std::ios_base base;

TEST(fmtflags_number_their_members_alphabetically_from_bit_0) {
  CHECK_EQ(base::boolalpha, 0x0001L);
  CHECK_EQ(base::dec, 0x0002L);
  CHECK_EQ(base::fixed, 0x0004L);
  CHECK_EQ(base::hex, 0x0008L);
  CHECK_EQ(base::internal, 0x0010L);
  CHECK_EQ(base::left, 0x0020L);
  CHECK_EQ(base::oct, 0x0040L);
  CHECK_EQ(base::right, 0x0080L);
  CHECK_EQ(base::scientific, 0x0100L);
  CHECK_EQ(base::showbase, 0x0200L);
  CHECK_EQ(base::showpoint, 0x0400L);
  CHECK_EQ(base::showpos, 0x0800L);
  CHECK_EQ(base::skipws, 0x1000L);
  CHECK_EQ(base::unitbuf, 0x2000L);
  CHECK_EQ(base::uppercase, 0x4000L);
  CHECK_EQ(sizeof(base::fmtflags), 4u);
}

TEST(composite_fmtflags_are_the_unions_of_their_members) {
  CHECK_EQ(base::adjustfield, 0x00B0L);
  CHECK_EQ(base::adjustfield, base::left | base::right | base::internal);
  CHECK_EQ(base::basefield, 0x004AL);
  CHECK_EQ(base::basefield, base::dec | base::oct | base::hex);
  CHECK_EQ(base::floatfield, 0x0104L);
  CHECK_EQ(base::floatfield, base::scientific | base::fixed);
}

TEST(iostate_bits_are_bad_eof_fail_in_a_16_bit_type) {
  CHECK_EQ(base::goodbit, 0);
  CHECK_EQ(base::badbit, 1);
  CHECK_EQ(base::eofbit, 2);
  CHECK_EQ(base::failbit, 4);
  CHECK_EQ(sizeof(base::iostate), 2u);
}

TEST(openmode_bits_number_app_ate_binary_in_out_trunc_in_a_16_bit_type) {
  CHECK_EQ(base::app, 0x01);
  CHECK_EQ(base::ate, 0x02);
  CHECK_EQ(base::binary, 0x04);
  CHECK_EQ(base::in, 0x08);
  CHECK_EQ(base::out, 0x10);
  CHECK_EQ(base::trunc, 0x20);
  CHECK_EQ(sizeof(base::openmode), 2u);
}

TEST(seekdir_values_are_beg_1_cur_2_end_4) {
  CHECK_EQ(base::beg, 1);
  CHECK_EQ(base::cur, 2);
  CHECK_EQ(base::end, 4);
}

TEST(event_values_are_erase_0_and_imbue_1) {
  CHECK_EQ(static_cast<int>(base::erase_event), 0);
  CHECK_EQ(static_cast<int>(base::imbue_event), 1);
}

TEST(streamoff_is_a_signed_32_bit_integer) {
  CHECK_EQ(sizeof(std::streamoff), 4u);
  CHECK(static_cast<std::streamoff>(-1) < 0);
  CHECK_EQ(sizeof(std::streamsize), 4u);
  CHECK(static_cast<std::streamsize>(-1) < 0);
}

TEST(streampos_is_twelve_bytes_offset_then_conversion_state) {
  CHECK_EQ(sizeof(std::streampos), 12u);
  std::streampos position(0);
  CHECK_EQ(offset_in(position, position.__offset), 0L);
  CHECK_EQ(offset_in(position, position.__state), 4L);
  CHECK_EQ(sizeof(position.__state), 8u);
}

TEST(a_position_made_from_an_offset_carries_a_zeroed_state) {
  union {
    void* alignment;
    unsigned char bytes[sizeof(std::streampos)];
  } storage;
  memset(storage.bytes, 0xAA, sizeof storage.bytes);
  std::streampos* position = new (storage.bytes) std::streampos(1234);
  CHECK_EQ(static_cast<std::streamoff>(*position), 1234L);
  static const unsigned char zero_state[8] = {0};
  CHECK_BYTES(reinterpret_cast<const char*>(storage.bytes + 4), 8u,
              reinterpret_cast<const char*>(zero_state), 8u);
}

TEST(the_invalid_position_has_offset_minus_one_and_a_zero_state) {
  std::streampos invalid(-1);
  CHECK_EQ(invalid.__offset, -1L);
  CHECK_EQ(static_cast<std::streamoff>(invalid), -1L);
  static const char zero_state[8] = {0};
  CHECK_BYTES(reinterpret_cast<const char*>(&invalid.__state), 8u, zero_state, 8u);
  CHECK(invalid == std::streampos(-1));
  CHECK(invalid != std::streampos(0));
}

TEST(positions_move_by_offsets_and_subtract_to_offsets) {
  std::streampos p(10);
  p += 5;
  CHECK_EQ(static_cast<std::streamoff>(p), 15L);
  p -= 3;
  CHECK_EQ(static_cast<std::streamoff>(p), 12L);
  CHECK_EQ(static_cast<std::streamoff>(p + 8L), 20L);
  CHECK_EQ(static_cast<std::streamoff>(p - 2L), 10L);
  CHECK_EQ(std::streampos(30) - std::streampos(12), 18L);
}

TEST(ios_base_fields_follow_the_virtual_table_pointer_in_declaration_order) {
  bare_base s;
  const std::ios_base& b = s;
  CHECK_EQ(offset_in(b, b.__locale), 4L);
  CHECK_EQ(offset_in(b, b.__callbacks), 8L);
  CHECK_EQ(offset_in(b, b.__callback_count), 16L);
  CHECK_EQ(offset_in(b, b.__precision), 20L);
  CHECK_EQ(offset_in(b, b.__width), 24L);
  CHECK_EQ(offset_in(b, b.__state), 28L);
  CHECK_EQ(offset_in(b, b.__flags), 32L);
  CHECK_EQ(offset_in(b, b.__exceptions), 36L);
  CHECK_EQ(offset_in(b, b.__iwords), 40L);
  CHECK_EQ(offset_in(b, b.__pwords), 48L);
  CHECK_EQ(sizeof(std::ios_base), 56u);
  CHECK_EQ(sizeof(b.__callbacks), 8u);
  CHECK_EQ(sizeof(std::ios_base::__callback_entry), 8u);
}

TEST(construction_takes_the_global_locale_and_empty_storages) {
  std::locale global;
  unsigned refs_before = refs_of(global);
  {
    bare_base s;
    CHECK(s.__locale.__imp == std::locale::global_);
    CHECK_EQ(refs_of(global), refs_before + 1);
    CHECK(s.__callbacks.data == 0);
    CHECK_EQ(s.__callbacks.size, 0u);
    CHECK_EQ(s.__callback_count, 0u);
    CHECK(s.__iwords.data == 0);
    CHECK_EQ(s.__iwords.size, 0u);
    CHECK(s.__pwords.data == 0);
    CHECK_EQ(s.__pwords.size, 0u);
  }
  CHECK_EQ(refs_of(global), refs_before);
}

ISOLATED_TEST(construction_without_a_global_locale_takes_the_classic_one) {
  std::locale::global_ = 0;
  bare_base s;
  CHECK(s.__locale.__imp == std::locale::classic().__imp);
  CHECK(std::locale::global_ == std::locale::classic().__imp);
  CHECK_STR(s.getloc().name().c_str(), "C");
}

TEST(flags_setf_and_unsetf_return_and_change_the_format_flags) {
  test_stream s(0);
  CHECK_EQ(s.flags(base::hex | base::left), base::skipws | base::dec);
  CHECK_EQ(s.flags(), base::hex | base::left);
  CHECK_EQ(s.setf(base::showpos), base::hex | base::left);
  CHECK_EQ(s.flags(), base::hex | base::left | base::showpos);
  CHECK_EQ(s.setf(base::right | base::oct, base::adjustfield),
           base::hex | base::left | base::showpos);
  CHECK_EQ(s.flags(), base::hex | base::right | base::showpos); // oct is outside the mask
  s.unsetf(base::showpos | base::hex);
  CHECK_EQ(s.flags(), base::right);
  CHECK_EQ(s.__flags, base::right);
}

TEST(precision_and_width_return_the_old_value) {
  test_stream s(0);
  CHECK_EQ(s.precision(12), 6L);
  CHECK_EQ(s.precision(), 12L);
  CHECK_EQ(s.__precision, 12L);
  CHECK_EQ(s.width(-3), 0L);
  CHECK_EQ(s.width(), -3L);
  CHECK_EQ(s.__width, -3L);
}

TEST(getloc_returns_a_copy_of_the_stream_locale) {
  test_stream s(0);
  unsigned refs_before = refs_of(s.__locale);
  std::locale copy = s.getloc();
  CHECK(copy.__imp == s.__locale.__imp);
  CHECK_EQ(refs_of(copy), refs_before + 1);
}

// xalloc is called by this test only, so the forked child still sees the counter untouched.
ISOLATED_TEST(xalloc_post_increments_from_zero_in_a_fresh_process) {
  CHECK_EQ(std::ios_base::index, 0);
  CHECK_EQ(std::ios_base::xalloc(), 0);
  CHECK_EQ(std::ios_base::xalloc(), 1);
  CHECK_EQ(std::ios_base::xalloc(), 2);
  CHECK_EQ(std::ios_base::index, 3);
}

TEST(iword_5_on_a_new_stream_grows_to_six_zeroes_and_iword_2_then_does_not_resize) {
  test_stream s(0);
  long& fifth = s.iword(5);
  CHECK_EQ(fifth, 0L);
  CHECK_EQ(s.__iwords.size, 6u);
  CHECK(&fifth == s.__iwords.data + 5);
  for (unsigned i = 0; i < 6; ++i)
    CHECK_EQ(s.__iwords.data[i], 0L);
  long* storage = s.__iwords.data;
  long& second = s.iword(2);
  CHECK_EQ(s.__iwords.size, 6u);
  CHECK(s.__iwords.data == storage);
  CHECK(&second == storage + 2);
}

TEST(iword_keeps_what_is_written_through_its_reference) {
  test_stream s(0);
  s.iword(3) = 77;
  s.iword(1) = -5;
  CHECK_EQ(s.iword(3), 77L);
  CHECK_EQ(s.iword(1), -5L);
  s.iword(9); // growth keeps the old elements
  CHECK_EQ(s.iword(3), 77L);
  CHECK_EQ(s.iword(1), -5L);
  CHECK_EQ(s.iword(8), 0L);
}

// The references iword(-1) and pword(-1) return point outside the storage and are not used.
TEST(iword_minus_one_compares_signed_and_does_not_grow) {
  test_stream s(0);
  s.iword(-1);
  CHECK_EQ(s.__iwords.size, 0u);
  CHECK(s.__iwords.data == 0);
  s.iword(3);
  long* storage = s.__iwords.data;
  s.iword(-1);
  CHECK_EQ(s.__iwords.size, 4u);
  CHECK(s.__iwords.data == storage);
}

TEST(pword_minus_one_compares_unsigned_and_takes_the_resize_path) {
  test_stream s(0);
  s.pword(3) = &s;
  CHECK_EQ(s.__pwords.size, 4u);
  s.pword(-1);
  // Resized to i + 1 elements, which for -1 is none.
  CHECK_EQ(s.__pwords.size, 0u);
  CHECK(s.__pwords.data == 0);
}

TEST(pword_grows_with_null_pointers_and_keeps_what_is_written) {
  test_stream s(0);
  void*& third = s.pword(2);
  CHECK(third == 0);
  CHECK_EQ(s.__pwords.size, 3u);
  CHECK(s.__pwords.data[0] == 0);
  CHECK(s.__pwords.data[1] == 0);
  third = &s;
  void** storage = s.__pwords.data;
  CHECK(s.pword(0) == 0);
  CHECK(s.__pwords.data == storage);
  CHECK(s.pword(2) == &s);
}

TEST(a_reference_stays_valid_until_the_next_growth_of_its_storage) {
  test_stream s(0);
  long& number = s.iword(1);
  void*& pointer = s.pword(1);
  number = 5;
  pointer = &number;
  s.iword(0);
  s.pword(0);
  CHECK(&s.iword(1) == &number); // no growth: the same element
  CHECK(&s.pword(1) == &pointer);
  s.iword(40);
  s.pword(40);
  // Grown: the values moved to new storage, away from the old references.
  CHECK(&s.iword(1) != &number);
  CHECK(&s.pword(1) != &pointer);
  CHECK_EQ(s.iword(1), 5L);
  CHECK(s.pword(1) != 0);
}

TEST(the_first_callback_allocates_five_entries) {
  bare_base s;
  s.register_callback(callback_f, 3);
  CHECK_EQ(s.__callbacks.size, 5u);
  CHECK_EQ(s.__callback_count, 1u);
  CHECK(s.__callbacks.data[0].first == callback_f);
  CHECK_EQ(s.__callbacks.data[0].second, 3);
  for (unsigned i = 1; i < 5; ++i) {
    CHECK(s.__callbacks.data[i].first == 0);
    CHECK_EQ(s.__callbacks.data[i].second, 0);
  }
}

TEST(the_sixth_callback_grows_the_storage_from_five_to_ten) {
  bare_base s;
  for (int i = 0; i < 5; ++i)
    s.register_callback(callback_f, i);
  CHECK_EQ(s.__callbacks.size, 5u);
  CHECK_EQ(s.__callback_count, 5u);
  s.register_callback(callback_g, 5);
  CHECK_EQ(s.__callbacks.size, 10u);
  CHECK_EQ(s.__callback_count, 6u);
  for (int i = 0; i < 5; ++i) {
    CHECK(s.__callbacks.data[i].first == callback_f);
    CHECK_EQ(s.__callbacks.data[i].second, i);
  }
  CHECK(s.__callbacks.data[5].first == callback_g);
  CHECK_EQ(s.__callbacks.data[5].second, 5);
  for (unsigned i = 6; i < 10; ++i)
    CHECK(s.__callbacks.data[i].first == 0);
}

TEST(imbue_calls_the_last_registered_callback_first_with_its_index) {
  clear_event_log();
  bare_base s;
  s.register_callback(callback_f, 7);
  s.register_callback(callback_g, 8);
  std::locale german("de_DE.UTF-8");
  s.imbue(german);
  CHECK_EQ(event_log.count, 2);
  CHECK_EQ(event_log.calls[0].function, 'g');
  CHECK_EQ(event_log.calls[0].index, 8);
  CHECK(event_log.calls[0].event == base::imbue_event);
  CHECK(event_log.calls[0].stream == &s);
  CHECK_EQ(event_log.calls[1].function, 'f');
  CHECK_EQ(event_log.calls[1].index, 7);
  CHECK(event_log.calls[1].event == base::imbue_event);
  CHECK(event_log.calls[1].stream == &s);
}

TEST(destruction_calls_the_callbacks_last_first_with_erase_event) {
  clear_event_log();
  std::ios_base* seen;
  {
    bare_base s;
    seen = &s;
    s.register_callback(callback_f, 7);
    s.register_callback(callback_g, 8);
  }
  CHECK_EQ(event_log.count, 2);
  CHECK_EQ(event_log.calls[0].function, 'g');
  CHECK_EQ(event_log.calls[0].index, 8);
  CHECK(event_log.calls[0].event == base::erase_event);
  CHECK(event_log.calls[0].stream == seen);
  CHECK_EQ(event_log.calls[1].function, 'f');
  CHECK_EQ(event_log.calls[1].index, 7);
  CHECK(event_log.calls[1].event == base::erase_event);
}

TEST(a_callback_registered_twice_is_called_twice) {
  clear_event_log();
  {
    bare_base s;
    s.register_callback(callback_f, 1);
    s.register_callback(callback_f, 1);
    CHECK_EQ(s.__callback_count, 2u);
    s.imbue(std::locale::classic());
    CHECK_EQ(event_log.count, 2);
    CHECK_EQ(event_log.calls[0].function, 'f');
    CHECK_EQ(event_log.calls[1].function, 'f');
  }
  CHECK_EQ(event_log.count, 4);
  CHECK(event_log.calls[2].event == base::erase_event);
  CHECK(event_log.calls[3].event == base::erase_event);
}

TEST(imbue_returns_the_previous_locale_and_callbacks_see_the_new_one) {
  clear_event_log();
  bare_base s;
  std::locale::imp* before = s.__locale.__imp;
  s.register_callback(callback_f, 0);
  std::locale french("fr_FR.UTF-8");
  std::locale previous = s.imbue(french);
  CHECK(previous.__imp == before);
  CHECK(s.__locale.__imp == french.__imp);
  CHECK(s.getloc().__imp == french.__imp);
  CHECK_EQ(refs_of(french), 2u); // the local and the stream's
  CHECK_EQ(event_log.count, 1);
  CHECK(event_log.calls[0].stream_locale == french.__imp);
}

TEST(imbue_without_callbacks_only_swaps_the_locale) {
  bare_base s;
  std::locale global;
  unsigned global_refs = refs_of(global);
  std::locale italian("it_IT.UTF-8");
  {
    std::locale previous = s.imbue(italian);
    CHECK(previous.__imp == global.__imp);
    CHECK_EQ(refs_of(global), global_refs); // the stream's reference moved to the result
  }
  CHECK_EQ(refs_of(global), global_refs - 1);
  CHECK_EQ(refs_of(italian), 2u);
}

TEST(destruction_frees_pwords_then_iwords_then_callbacks_and_drops_the_locale) {
  std::locale global;
  unsigned refs_before = refs_of(global);
  void* pwords;
  void* iwords;
  void* callbacks;
  {
    bare_base s;
    s.iword(2);
    s.pword(1);
    s.register_callback(callback_f, 0);
    pwords = s.__pwords.data;
    iwords = s.__iwords.data;
    callbacks = s.__callbacks.data;
    CHECK_EQ(refs_of(global), refs_before + 1);
    freed_count = 0; // watching from here to the end of the destructor
  }
  int freed = freed_count;
  freed_count = -1;
  CHECK_EQ(freed, 3);
  CHECK(freed_blocks[0] == pwords);
  CHECK(freed_blocks[1] == iwords);
  CHECK(freed_blocks[2] == callbacks);
  CHECK_EQ(refs_of(global), refs_before);
}

TEST(destruction_with_empty_storages_frees_nothing) {
  {
    bare_base s;
    freed_count = 0;
  }
  int freed = freed_count;
  freed_count = -1;
  CHECK_EQ(freed, 0);
}

TEST(throwfailure_prints_failure_in_io_and_exits_with_status_1) {
  EXPECT_EXIT(std::ios_base::throwfailure(), 1, "Failure in I/O\n");
}

ISOLATED_TEST(sync_with_stdio_remembers_the_setting_and_returns_the_previous_one) {
  CHECK_EQ(std::ios_base::sync_with_stdio(false), true);
  CHECK_EQ(std::ios_base::sync_with_stdio(), false);
  CHECK_EQ(std::ios_base::sync_with_stdio(true), true);
}

TEST(a_failure_carries_its_message_and_is_an_exception) {
  std::ios_base::failure failure(std::string("stream broke"));
  const std::exception& base = failure;
  CHECK_STR(base.what(), "stream broke");
}
