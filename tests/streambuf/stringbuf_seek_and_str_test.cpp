// basic_stringbuf<char>: the two seeks, setbuf, construction, str() and str(s), and the release
// of the array.
#include "stringbuf_test_support.h"

// seekpos.

TEST(seekpos_to_a_negative_offset_is_invalid) {
  test_stringbuf buffer(std::string("abc"));
  buffer.sbumpc();
  std::streampos at = buffer.seekpos(-1);
  CHECK_EQ(offset_of(at), invalid);
  CHECK(state_is_zero(at));
  CHECK_EQ(offset_of(buffer.seekpos(-3, io::in)), invalid);
  CHECK_EQ(buffer.get_offset(), 1);
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekpos_reaches_the_length_written_and_not_one_beyond) {
  for (long length = 1; length <= 130; ++length) {
    std::string text = generated_text(length, length);
    test_stringbuf buffer;
    buffer.sputn(text.data(), length);
    CHECK_EQ(offset_of(buffer.seekpos(length)), length);
    CHECK_EQ(buffer.get_offset(), length);
    CHECK_EQ(buffer.put_offset(), length);
    CHECK_EQ(offset_of(buffer.seekpos(0)), 0);
    CHECK_EQ(offset_of(buffer.seekpos(length + 1)), invalid);
    CHECK_EQ(buffer.get_offset(), 0);
    CHECK_EQ(buffer.put_offset(), 0);
  }
}

TEST(seekpos_first_raises_egptr_to_pptr) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback(), buffer.eback() + 2);
  CHECK_EQ(offset_of(buffer.seekpos(4, io::in)), 4);
  CHECK_EQ(buffer.get_end(), 6);
  CHECK_EQ(buffer.sbumpc(), 'e');
  CHECK_EQ(buffer.put_offset(), 6);
}

TEST(seekpos_moves_whichever_area_reaches_the_offset) {
  test_stringbuf buffer(std::string("abcdef"));
  // pptr is at 0, below egptr, so egptr stays at 2 and only the put area can reach 4.
  buffer.setg(buffer.eback(), buffer.eback() + 1, buffer.eback() + 2);
  CHECK_EQ(offset_of(buffer.seekpos(4)), 4);
  CHECK_EQ(buffer.get_offset(), 1);
  CHECK_EQ(buffer.put_offset(), 4);
  CHECK_EQ(offset_of(buffer.seekpos(5, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekpos(7)), invalid);
  CHECK_EQ(buffer.put_offset(), 4);
}

TEST(seekpos_needs_the_area_it_is_asked_to_move) {
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK_EQ(offset_of(reader.seekpos(3, io::in)), 3);
  CHECK_EQ(offset_of(reader.seekpos(4, io::in)), invalid);
  CHECK_EQ(offset_of(reader.seekpos(1, io::out)), invalid);
  CHECK_EQ(reader.get_offset(), 3);
  test_stringbuf writer(std::string("abc"), io::out);
  CHECK_EQ(offset_of(writer.seekpos(2, io::out)), 2);
  CHECK_EQ(offset_of(writer.seekpos(1, io::in)), invalid);
  CHECK_EQ(offset_of(writer.seekpos(1)), 1);
  CHECK_EQ(writer.put_offset(), 1);
  test_stringbuf fresh;
  std::streampos at = fresh.seekpos(0);
  CHECK_EQ(offset_of(at), invalid);
  CHECK(state_is_zero(at));
  CHECK_EQ(offset_of(writer.seekpos(1, static_cast<io::openmode>(0))), invalid);
}

// seekoff.

TEST(seekoff_relative_to_here_for_both_areas_is_invalid) {
  test_stringbuf buffer(std::string("abcdef"));
  buffer.sbumpc();
  for (int off = -2; off <= 2; ++off) {
    std::streampos at = buffer.seekoff(off, io::cur);
    CHECK_EQ(offset_of(at), invalid);
    CHECK(state_is_zero(at));
  }
  CHECK_EQ(buffer.get_offset(), 1);
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekoff_of_both_areas_from_the_start_or_the_end) {
  test_stringbuf buffer;
  buffer.sputn("hello", 5);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::beg)), 2);
  CHECK_EQ(buffer.get_offset(), 2);
  CHECK_EQ(buffer.put_offset(), 2);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::end)), 4);
  CHECK_EQ(buffer.get_offset(), 4);
  CHECK_EQ(buffer.put_offset(), 4);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end)), 5);
  CHECK_EQ(offset_of(buffer.seekoff(-5, io::end)), 0);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(-6, io::end)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::beg)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(6, io::beg)), invalid);
  CHECK_EQ(buffer.get_offset(), 0);
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekoff_of_both_areas_measures_the_end_by_the_high_water_mark) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback(), buffer.eback() + 3);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end)), 6);
  CHECK_EQ(buffer.get_offset(), 6);
}

TEST(seekoff_of_the_get_area_alone) {
  test_stringbuf buffer(std::string("abcdef"));
  buffer.sbumpc();
  buffer.sbumpc();
  CHECK_EQ(offset_of(buffer.seekoff(1, io::cur, io::in)), 3);
  CHECK_EQ(buffer.sbumpc(), 'd');
  CHECK_EQ(offset_of(buffer.seekoff(-4, io::cur, io::in)), 0);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::cur, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end, io::in)), 6);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(7, io::beg, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(5, io::beg, io::in)), 5);
  CHECK_EQ(buffer.sbumpc(), 'f');
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekoff_of_the_get_area_measures_the_end_by_egptr) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback(), buffer.eback() + 3);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end, io::in)), 3);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(4, io::beg, io::in)), invalid);
}

TEST(seekoff_of_the_put_area_alone) {
  test_stringbuf buffer(std::string("abcdef"));
  buffer.sbumpc();
  CHECK_EQ(offset_of(buffer.seekoff(3, io::beg, io::out)), 3);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::cur, io::out)), 5);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::cur, io::out)), invalid);
  CHECK_EQ(buffer.put_offset(), 5);
  CHECK_EQ(offset_of(buffer.seekoff(-6, io::cur, io::out)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::end, io::out)), 5);
  CHECK_EQ(offset_of(buffer.seekoff(-7, io::end, io::out)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end, io::out)), invalid);
  CHECK_EQ(buffer.put_offset(), 5);
  CHECK_EQ(buffer.get_offset(), 1);
  buffer.sputc('X');
  holds(buffer, "abcdeX");
}

TEST(seekoff_of_the_put_area_ends_at_the_high_water_mark_not_the_allocation) {
  test_stringbuf writer(io::out);
  writer.sputn("abc", 3);
  CHECK_EQ(writer.allocated(), 64);
  CHECK_EQ(offset_of(writer.seekoff(0, io::end, io::out)), 3);
  CHECK_EQ(offset_of(writer.seekoff(1, io::end, io::out)), invalid);
  CHECK_EQ(offset_of(writer.seekoff(4, io::beg, io::out)), invalid);
  CHECK_EQ(writer.put_offset(), 3);
}

TEST(seekoff_of_both_in_an_output_buffer_moves_the_put_area) {
  test_stringbuf writer(std::string("abcdef"), io::out);
  CHECK_EQ(offset_of(writer.seekoff(2, io::cur)), 2);
  CHECK_EQ(offset_of(writer.seekoff(1, io::cur)), 3);
  CHECK_EQ(writer.put_offset(), 3);
  test_stringbuf reader(std::string("abcdef"), io::in);
  CHECK_EQ(offset_of(reader.seekoff(2, io::cur)), 2);
  CHECK_EQ(reader.sbumpc(), 'c');
}

TEST(seekoff_without_the_areas_it_is_asked_to_move_is_invalid) {
  test_stringbuf fresh;
  CHECK_EQ(offset_of(fresh.seekoff(0, io::beg)), invalid);
  CHECK_EQ(offset_of(fresh.seekoff(0, io::cur, io::in)), invalid);
  CHECK_EQ(offset_of(fresh.seekoff(0, io::end, io::out)), invalid);
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK_EQ(offset_of(reader.seekoff(0, io::beg, io::out)), invalid);
  test_stringbuf writer(std::string("abc"), io::out);
  CHECK_EQ(offset_of(writer.seekoff(0, io::beg, io::in)), invalid);
  CHECK_EQ(offset_of(writer.seekoff(0, io::beg, static_cast<io::openmode>(0))), invalid);
}

// A model of the four offsets, moved by the written rules, against the buffer under a generated
// series of writes, reads and seeks.
namespace {
struct model {
  long get, get_end, put, put_end;
  std::string text;
};

long model_seekoff(model& m, long off, io::seekdir dir, io::openmode which) {
  bool in = (which & io::in) != 0, out = (which & io::out) != 0;
  if (in && out) {
    if (dir == io::cur)
      return -1;
    long target = (dir == io::beg ? 0 : m.put_end) + off;
    if (target < 0 || target > m.put_end)
      return -1;
    m.get = m.put = target;
    return target;
  }
  if (in) {
    long target = (dir == io::beg ? 0 : dir == io::cur ? m.get : m.get_end) + off;
    if (target < 0 || target > m.get_end)
      return -1;
    return m.get = target;
  }
  if (out) {
    long target = (dir == io::beg ? 0 : dir == io::cur ? m.put : m.put_end) + off;
    if (target < 0 || target > m.put_end)
      return -1;
    return m.put = target;
  }
  return -1;
}

long model_seekpos(model& m, long pos, io::openmode which) {
  if (pos < 0)
    return -1;
  if (m.put > m.get_end)
    m.get_end = m.put;
  bool moved = false;
  if ((which & io::in) && pos <= m.get_end) {
    m.get = pos;
    moved = true;
  }
  if ((which & io::out) && pos <= m.put_end) {
    m.put = pos;
    moved = true;
  }
  return moved ? pos : -1;
}

void model_sputc(model& m, char c) {
  if (m.put < m.put_end) {
    m.text[m.put++] = c;
    return;
  }
  m.text += c;
  m.put_end = ++m.put;
  m.get_end = m.put;
}

int model_sbumpc(model& m) {
  if (m.get < m.get_end)
    return static_cast<unsigned char>(m.text[m.get++]);
  if (m.put > m.get_end) {
    m.get_end = m.put;
    return static_cast<unsigned char>(m.text[m.get++]);
  }
  return -1;
}
} // namespace

TEST(generated_writes_reads_and_seeks_follow_the_rules) {
  static const io::seekdir dirs[] = {io::beg, io::cur, io::end};
  static const io::openmode whichs[] = {io::in, io::out, io::in | io::out};
  generator g(2024);
  std::string start = generated_text(99, 10);
  test_stringbuf buffer(start);
  model m = {0, 10, 0, 10, start};
  for (int step = 0; step < 5000; ++step) {
    unsigned choice = g.next() % 4;
    long off = static_cast<long>(g.next() % (m.put_end + 7)) - 3;
    io::openmode which = whichs[g.next() % 3];
    if (choice == 0) {
      io::seekdir dir = dirs[g.next() % 3];
      if (dir != io::beg)
        off -= m.put_end / 2;
      long expected = model_seekoff(m, off, dir, which);
      CHECK_EQ(offset_of(buffer.seekoff(off, dir, which)), expected);
    } else if (choice == 1) {
      long expected = model_seekpos(m, off, which);
      CHECK_EQ(offset_of(buffer.seekpos(off, which)), expected);
    } else if (choice == 2) {
      char c = g.next_char();
      CHECK_EQ(buffer.sputc(c), static_cast<unsigned char>(c));
      model_sputc(m, c);
    } else {
      CHECK_EQ(buffer.sbumpc(), model_sbumpc(m));
    }
    if (!CHECK_EQ(buffer.get_offset(), m.get) || !CHECK_EQ(buffer.get_end(), m.get_end) ||
        !CHECK_EQ(buffer.put_offset(), m.put) || !CHECK_EQ(buffer.put_end(), m.put_end)) {
      printf("at step %d\n", step);
      break;
    }
  }
  holds(buffer, m.text);
}

// setbuf and the other defaults.

TEST(setbuf_returns_the_buffer_and_changes_nothing) {
  test_stringbuf buffer(std::string("abc"));
  char storage[16];
  char* put = buffer.pptr();
  CHECK(buffer.setbuf(storage, sizeof storage) == &buffer);
  CHECK(buffer.pubsetbuf(0, 0) == &buffer);
  CHECK(buffer.pptr() == put);
  CHECK(buffer.eback() != storage);
  holds(buffer, "abc");
}

TEST(sync_and_showmanyc_keep_the_base_defaults) {
  test_stringbuf buffer;
  buffer.sputn("abc", 3);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_EQ(buffer.pubsync(), 0);
  CHECK_EQ(buffer.showmanyc(), 0);
}

// Construction, str() and str(s).

TEST(a_default_buffer_holds_nothing_and_allocates_nothing) {
  reset_log();
  test_stringbuf buffer;
  CHECK_EQ(array_news, 0);
  CHECK(buffer.eback() == 0);
  CHECK(buffer.gptr() == 0);
  CHECK(buffer.egptr() == 0);
  CHECK(buffer.pbase() == 0);
  CHECK(buffer.pptr() == 0);
  CHECK(buffer.epptr() == 0);
  CHECK(buffer.__end_of_allocation == 0);
  CHECK(buffer.__mode == (io::in | io::out));
  CHECK(buffer.str().empty());
}

TEST(a_buffer_given_a_string_reads_all_of_it_and_writes_over_its_start) {
  test_stringbuf buffer(std::string("hello"));
  CHECK(buffer.eback() == buffer.pbase());
  CHECK_EQ(buffer.get_offset(), 0);
  CHECK_EQ(buffer.get_end(), 5);
  CHECK_EQ(buffer.put_offset(), 0);
  CHECK_EQ(buffer.put_end(), 5);
  CHECK_EQ(buffer.sputc('J'), 'J');
  CHECK_EQ(buffer.sbumpc(), 'J');
  CHECK_EQ(buffer.sbumpc(), 'e');
  holds(buffer, "Jello");
}

TEST(a_buffer_given_a_string_with_ate_or_app_writes_at_its_end) {
  static const io::openmode modes[] = {io::ate, io::app, io::ate | io::app};
  for (int i = 0; i < 3; ++i) {
    test_stringbuf buffer(std::string("hello"), io::in | io::out | modes[i]);
    CHECK_EQ(buffer.put_offset(), 5);
    CHECK_EQ(buffer.get_offset(), 0);
    buffer.sputn(", world", 7);
    holds(buffer, "hello, world");
    char read[12];
    CHECK_EQ(buffer.sgetn(read, 12), 12);
    CHECK_BYTES(read, 12, "hello, world", 12);
    test_stringbuf writer(std::string("ab"), io::out | modes[i]);
    writer.sputc('c');
    holds(writer, "abc");
  }
}

TEST(an_input_buffer_given_a_string_has_no_put_area) {
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK(reader.pbase() == 0);
  CHECK(reader.pptr() == 0);
  CHECK(reader.epptr() == 0);
  CHECK_EQ(reader.get_end(), 3);
  CHECK_EQ(reader.sbumpc(), 'a');
  // The whole text, whatever has been read.
  holds(reader, "abc");
}

TEST(an_output_buffer_given_a_string_has_no_get_area) {
  test_stringbuf writer(std::string("abc"), io::out);
  CHECK(writer.eback() == 0);
  CHECK(writer.gptr() == 0);
  CHECK_EQ(writer.sbumpc(), -1);
  holds(writer, "abc");
}

TEST(str_holds_everything_written_up_to_the_high_water_mark) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.seekoff(1, io::beg);
  CHECK_EQ(buffer.sbumpc(), 'b');
  holds(buffer, "abcdef");
}

TEST(str_keeps_embedded_nul_and_every_byte) {
  std::string text;
  for (int c = 0; c < 256; ++c)
    text += static_cast<char>(c);
  test_stringbuf written;
  written.sputn(text.data(), 256);
  holds(written, text);
  test_stringbuf given(text, io::in);
  holds(given, text);
}

TEST(str_of_a_string_replaces_the_content_and_releases_the_old_array) {
  test_stringbuf buffer;
  buffer.sputn("hello world", 11);
  char* old = buffer.pbase();
  reset_log();
  buffer.str("xy");
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == old);
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_sizes[0], 64u);
  holds(buffer, "xy");
  CHECK_EQ(buffer.get_offset(), 0);
  CHECK_EQ(buffer.get_end(), 2);
  CHECK_EQ(buffer.put_offset(), 0);
  CHECK_EQ(buffer.put_end(), 2);
  CHECK_EQ(buffer.sputc('Z'), 'Z');
  holds(buffer, "Zy");
  CHECK_EQ(buffer.sbumpc(), 'Z');
}

TEST(str_of_a_string_keeps_the_mode) {
  test_stringbuf appender(std::string("ab"), io::out | io::app);
  appender.str("xy");
  appender.sputc('z');
  holds(appender, "xyz");
  test_stringbuf reader(std::string("ab"), io::in);
  reader.str("cd");
  CHECK(reader.pbase() == 0);
  CHECK_EQ(reader.sbumpc(), 'c');
  holds(reader, "cd");
}

TEST(str_of_an_empty_string_releases_the_array_and_leaves_no_areas) {
  test_stringbuf buffer;
  buffer.sputn("abc", 3);
  reset_log();
  buffer.str("");
  CHECK_EQ(array_deletes, 1);
  CHECK_EQ(array_news, 0);
  CHECK(buffer.eback() == 0);
  CHECK(buffer.pbase() == 0);
  CHECK(buffer.pptr() == 0);
  CHECK(buffer.str().empty());
  CHECK_EQ(buffer.sbumpc(), -1);
  buffer.sputc('q');
  CHECK_EQ(array_sizes[0], 64u);
  holds(buffer, "q");
}

TEST(str_of_a_long_string_reads_back_whole) {
  std::string text = generated_text(77, 5000);
  test_stringbuf buffer;
  buffer.str(text);
  CHECK_EQ(buffer.allocated(), 5056);
  holds(buffer, text);
  char* read = static_cast<char*>(malloc(5000));
  CHECK_EQ(buffer.sgetn(read, 6000), 5000);
  CHECK_BYTES(read, 5000, text.data(), 5000);
  free(read);
}

// Destruction.

TEST(destruction_releases_the_array) {
  char* array;
  reset_log();
  {
    test_stringbuf buffer;
    buffer.sputn("abc", 3);
    array = buffer.pbase();
  }
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == array);
  reset_log();
  {
    test_stringbuf reader(std::string("abc"), io::in);
    array = reader.eback();
  }
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == array);
  reset_log();
  { test_stringbuf fresh; }
  CHECK_EQ(array_deletes, 0);
}

TEST(a_long_life_of_writes_and_replacements_releases_every_array) {
  reset_log();
  {
    test_stringbuf buffer;
    std::string text = generated_text(5, 700);
    buffer.sputn(text.data(), 700);
    buffer.str(text.substr(0, 100));
    buffer.seekoff(0, io::end, io::out);
    buffer.sputn(text.data(), 300);
    buffer.str("");
    buffer.sputc('a');
  }
  CHECK(array_news > 0);
  CHECK_EQ(array_deletes, array_news);
}
