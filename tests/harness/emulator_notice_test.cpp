// The harness cuts the one trailing line qemu-i386 adds to a signalled child's standard error,
// and nothing else: the library's own text is compared as it is.
#include "lorb_test.h"
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const char notice[] = "qemu: uncaught target signal 6 (Aborted) - core dumped\n";

static lt::outcome run_child_writing(const char* text) {
  lt::child c;
  if (lt::start_child(&c)) {
    fputs(text, stderr);
    exit(0);
  }
  return lt::finish_child(&c);
}

static void expect_kept_error(const char* written, const char* kept) {
  lt::outcome o = run_child_writing(written);
  CHECK_BYTES(o.err, o.err_length, kept, strlen(kept));
  lt::release(&o);
}

TEST(a_trailing_emulator_notice_is_cut) {
  char written[256];
  snprintf(written, sizeof written, "library text\n%s", notice);
  expect_kept_error(written, "library text\n");
}

TEST(a_lone_emulator_notice_is_cut) { expect_kept_error(notice, ""); }

TEST(only_one_trailing_notice_is_cut) {
  char written[256];
  snprintf(written, sizeof written, "%s%s", notice, notice);
  expect_kept_error(written, notice);
}

TEST(a_notice_followed_by_library_text_is_kept) {
  char written[256];
  snprintf(written, sizeof written, "%safter\n", notice);
  expect_kept_error(written, written);
}

TEST(a_notice_without_its_newline_is_kept) {
  expect_kept_error("qemu: uncaught target signal 6 (Aborted)",
                    "qemu: uncaught target signal 6 (Aborted)");
}

TEST(other_text_on_the_last_line_is_kept) {
  expect_kept_error("out_of_range: Out of range exception occurred\n",
                    "out_of_range: Out of range exception occurred\n");
}

TEST(a_child_that_aborts_still_reports_the_library_text_exactly) {
  EXPECT_ABORT((fputs("written before abort\n", stderr), abort()), "written before abort\n");
}
