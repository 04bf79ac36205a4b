// The prefix and suffix every output operation runs (tie flush, the state of a stream that is
// not good, unitbuf syncs), the user-visible sentry class and opfx.
#include "lorb_test.h"
#include "output_test_buffers.h"
#include <ios>
#include <ostream>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate bad = std::ios_base::badbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate fail = std::ios_base::failbit;

// A tied stream's buffer that notes how much the watched buffer held when it was synced, and can
// set state bits on a victim stream while syncing.
struct watching_buffer : recording_buffer {
  const recording_buffer* watched;
  int watched_length_at_sync;
  std::ostream* victim;
  std::ios_base::iostate victim_bits;

  explicit watching_buffer(const recording_buffer* w)
      : watched(w), watched_length_at_sync(-1), victim(0), victim_bits(good) {}
  int sync() {
    watched_length_at_sync = watched->length;
    if (victim)
      victim->setstate(victim_bits);
    return recording_buffer::sync();
  }
};

// One output operation of each kind, for the tests that go through all of them.
typedef void (*operation)(std::ostream&);
void insert_text(std::ostream& os) { os << "ab"; }
void insert_char(std::ostream& os) { os << 'c'; }
void insert_long(std::ostream& os) { os << 42L; }
void insert_double(std::ostream& os) { os << 1.5; }
void insert_bool(std::ostream& os) { os << true; }
void insert_pointer(std::ostream& os) { os << static_cast<const void*>(0); }
void insert_buffer(std::ostream& os) {
  source_buffer sb("xy");
  os << &sb;
}
void put_char(std::ostream& os) { os.put('p'); }
void write_text(std::ostream& os) { os.write("wx", 2); }
void flush_stream(std::ostream& os) { os.flush(); }

const operation every_operation[] = {insert_text, insert_char,    insert_long,   insert_double,
                                     insert_bool, insert_pointer, insert_buffer, put_char,
                                     write_text,  flush_stream};
const int operation_count = sizeof every_operation / sizeof every_operation[0];

} // namespace

// The prefix.

TEST(a_good_tied_stream_flushes_its_tie_before_writing) {
  recording_buffer out;
  watching_buffer tied_buffer(&out);
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  os << "ab";
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK_EQ(tied_buffer.watched_length_at_sync, 0);
  CHECK_WRITTEN(out, "ab");
  CHECK_EQ(os.rdstate(), good);
}

TEST(every_operation_flushes_the_tie_of_a_good_stream) {
  for (int i = 0; i < operation_count; ++i) {
    recording_buffer out;
    recording_buffer tied_buffer;
    std::ostream tied(&tied_buffer);
    std::ostream os(&out);
    os.tie(&tied);
    every_operation[i](os);
    CHECK_EQ(tied_buffer.syncs, 1);
  }
}

TEST(a_stream_that_is_not_good_leaves_its_tie_alone) {
  for (int i = 0; i < operation_count; ++i) {
    recording_buffer out;
    recording_buffer tied_buffer;
    std::ostream tied(&tied_buffer);
    std::ostream os(&out);
    os.tie(&tied);
    os.setstate(eof);
    every_operation[i](os);
    CHECK_EQ(tied_buffer.syncs, 0);
    CHECK_EQ(tied.rdstate(), good);
  }
}

TEST(any_operation_on_a_stream_that_is_not_good_adds_failbit_and_writes_nothing) {
  for (int i = 0; i < operation_count; ++i) {
    recording_buffer out;
    std::ostream os(&out);
    os.setstate(eof);
    every_operation[i](os);
    // put and the stream-buffer inserter add badbit as well; pinned in their own tests
    if (every_operation[i] == put_char || every_operation[i] == insert_buffer)
      CHECK_EQ(os.rdstate(), eof | fail | bad);
    else
      CHECK_EQ(os.rdstate(), eof | fail);
    CHECK_EQ(out.length, 0);
    CHECK_EQ(out.overflows, 0);
    CHECK_EQ(out.xsputns, 0);
    CHECK_EQ(out.syncs, 0);
  }
}

TEST(a_stream_without_buffer_gets_failbit_and_badbit) {
  for (int i = 0; i < operation_count; ++i) {
    std::ostream os(0);
    CHECK_EQ(os.rdstate(), bad);
    every_operation[i](os);
    CHECK_EQ(os.rdstate(), fail | bad);
  }
}

TEST(a_stream_without_buffer_whose_state_lacks_badbit_gets_it_from_the_state_rule) {
  std::ostream os(0);
  os.__state = eof; // a state that only the fields can give
  os << "ab";
  CHECK_EQ(os.rdstate(), eof | fail | bad);
}

TEST(the_prefix_failbit_meets_the_exception_mask_and_ends_the_process) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(eof);
  os.exceptions(fail);
  EXPECT_EXIT(os << "ab", 1, "Failure in I/O\n");
  CHECK_EQ(out.length, 0);
}

TEST(the_prefix_looks_at_the_state_again_after_flushing_the_tie) {
  recording_buffer out;
  watching_buffer tied_buffer(&out);
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  tied_buffer.victim = &os;
  tied_buffer.victim_bits = eof;
  os << "ab";
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK_EQ(os.rdstate(), eof | fail);
  CHECK_EQ(out.length, 0);
}

TEST(the_tie_is_flushed_with_its_own_flush_and_its_failure_stays_there) {
  recording_buffer out;
  failing_sync_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  os << "ab";
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK_EQ(tied.rdstate(), bad);
  CHECK_EQ(os.rdstate(), good);
  CHECK_WRITTEN(out, "ab");
}

TEST(a_tie_that_is_not_good_gets_failbit_from_its_flush_and_is_not_synced) {
  recording_buffer out;
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  tied.setstate(eof);
  std::ostream os(&out);
  os.tie(&tied);
  os << "ab";
  CHECK_EQ(tied_buffer.syncs, 0);
  CHECK_EQ(tied.rdstate(), eof | fail);
  CHECK_WRITTEN(out, "ab");
}

// The suffix.

TEST(without_unitbuf_no_operation_but_flush_syncs) {
  for (int i = 0; i < operation_count; ++i) {
    recording_buffer out;
    std::ostream os(&out);
    every_operation[i](os);
    CHECK_EQ(out.syncs, every_operation[i] == flush_stream ? 1 : 0);
  }
}

TEST(unitbuf_syncs_the_buffer_after_every_insertion) {
  for (int i = 0; i < operation_count; ++i) {
    recording_buffer out;
    std::ostream os(&out);
    os.setf(std::ios_base::unitbuf);
    every_operation[i](os);
    CHECK_EQ(out.syncs, every_operation[i] == flush_stream ? 2 : 1);
    CHECK_EQ(os.rdstate(), good);
  }
}

TEST(unitbuf_syncs_once_per_operation_in_a_chain) {
  recording_buffer out;
  std::ostream os(&out);
  os.setf(std::ios_base::unitbuf);
  os << "a" << 'b' << 3L;
  CHECK_EQ(out.syncs, 3);
  CHECK_WRITTEN(out, "ab3");
}

TEST(flush_on_a_unitbuf_stream_syncs_twice) {
  recording_buffer out;
  std::ostream os(&out);
  os.setf(std::ios_base::unitbuf);
  os.flush();
  CHECK_EQ(out.syncs, 2);
}

TEST(the_suffix_runs_also_after_a_failed_prefix) {
  for (int i = 0; i < operation_count; ++i) {
    recording_buffer out;
    std::ostream os(&out);
    os.setf(std::ios_base::unitbuf);
    os.setstate(eof);
    every_operation[i](os);
    CHECK_EQ(out.syncs, 1); // flush's own sync is skipped, the suffix's is not
    CHECK_EQ(out.length, 0);
  }
}

TEST(a_failing_unitbuf_sync_adds_badbit) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os.setf(std::ios_base::unitbuf);
  os << "ab";
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), bad);
  CHECK_WRITTEN(out, "ab");
}

TEST(a_failing_unitbuf_sync_after_a_failed_prefix_adds_badbit_too) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os.setf(std::ios_base::unitbuf);
  os.setstate(eof);
  os << 'c';
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), eof | fail | bad);
}

TEST(a_failing_unitbuf_sync_meets_the_exception_mask_and_ends_the_process) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os.setf(std::ios_base::unitbuf);
  os.exceptions(bad);
  EXPECT_EXIT(os << "ab", 1, "Failure in I/O\n");
}

TEST(a_unitbuf_stream_without_buffer_only_gets_its_bits) {
  std::ostream os(0);
  os.setf(std::ios_base::unitbuf);
  os << "ab";
  CHECK_EQ(os.rdstate(), fail | bad);
}

// The sentry class that user-written operations use.

TEST(the_sentry_class_runs_the_same_prefix_and_suffix) {
  recording_buffer out;
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  os.setf(std::ios_base::unitbuf);
  {
    std::ostream::sentry s(os);
    CHECK(static_cast<bool>(s));
    CHECK_EQ(tied_buffer.syncs, 1);
    CHECK_EQ(out.syncs, 0);
  }
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), good);
}

TEST(the_sentry_class_on_a_stream_that_is_not_good_is_false_and_adds_failbit) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(eof);
  {
    std::ostream::sentry s(os);
    CHECK(!static_cast<bool>(s));
  }
  CHECK_EQ(os.rdstate(), eof | fail);
}

// opfx.

TEST(opfx_flushes_the_tie_of_a_good_stream_and_says_true) {
  recording_buffer out;
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  CHECK(os.opfx());
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK_EQ(os.rdstate(), good);
  CHECK_EQ(out.syncs, 0);
}

TEST(opfx_without_a_tie_says_true_and_does_nothing) {
  recording_buffer out;
  std::ostream os(&out);
  CHECK(os.opfx());
  CHECK_EQ(out.syncs, 0);
  CHECK_EQ(os.rdstate(), good);
}

TEST(opfx_on_a_stream_that_is_not_good_says_false_and_adds_no_bit) {
  recording_buffer out;
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  os.setstate(eof);
  CHECK(!os.opfx());
  CHECK_EQ(tied_buffer.syncs, 0);
  CHECK_EQ(os.rdstate(), eof);
}

TEST(opfx_reads_the_state_after_flushing_the_tie) {
  recording_buffer out;
  watching_buffer tied_buffer(&out);
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  tied_buffer.victim = &os;
  tied_buffer.victim_bits = eof;
  CHECK(!os.opfx());
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK_EQ(os.rdstate(), eof);
}
