// Error reporting: every message of the table, every __throw routine, the exported texts.
#include "lorb_test.h"
#include <__lorb/error.h>
#include <__lorb/report_error.h>
#include <__lorb/runtime.h>
#include <stdexcept>
#include <stdio.h>
#include <string.h>

// The exported arrays hold exactly these bytes, terminator included.
#define CHECK_MESSAGE(array, text) CHECK_BYTES(array, sizeof(text), text, sizeof(text))

TEST(exported_message_texts_hold_the_exact_bytes) {
  CHECK_MESSAGE(__vel::out_of_range_message, "Out of range exception occurred");
  CHECK_MESSAGE(__vel::container_out_of_range_message, "Out of range exception\n");
  CHECK_MESSAGE(__vel::bitset_out_of_range_message, "Out of range exception occured.");
  CHECK_MESSAGE(__vel::length_error_message, "Length exception occurred");
  CHECK_MESSAGE(__vel::invalid_value_message, "Invalid value in the string");
  CHECK_MESSAGE(__vel::bitset_overflow_message, "Bitset can not be converted");
  CHECK_MESSAGE(__vel::facet_not_present_message, "Facet not present\n");
  CHECK_MESSAGE(__vel::invalid_locale_name_message, "Invalid locale name\n");
  CHECK_MESSAGE(__vel::out_of_memory_message, "Lorb++ : Could not allocate  memory ...\n");
}

// One row of the message table each.

TEST(string_position_message_prints_class_colon_blank_message_newline_and_aborts) {
  EXPECT_ABORT(std::out_of_range::__throw(__vel::out_of_range_message),
               "out_of_range: Out of range exception occurred\n");
}

TEST(container_position_message_is_followed_by_an_empty_line) {
  EXPECT_ABORT(std::out_of_range::__throw(__vel::container_out_of_range_message),
               "out_of_range: Out of range exception\n\n");
}

TEST(throw_range_reports_the_bitset_position_message_as_out_of_range) {
  EXPECT_ABORT(__vel::throw_range(), "out_of_range: Out of range exception occured.\n");
}

TEST(length_message_is_reported_as_length_error) {
  EXPECT_ABORT(std::length_error::__throw(__vel::length_error_message),
               "length_error: Length exception occurred\n");
}

TEST(throw_invalid_value_in_string_reports_invalid_argument) {
  EXPECT_ABORT(__vel::throw_invalid_value_in_string(),
               "invalid_argument: Invalid value in the string\n");
}

TEST(throw_bitset_overflow_reports_overflow_error) {
  EXPECT_ABORT(__vel::throw_bitset_overflow(), "overflow_error: Bitset can not be converted\n");
}

TEST(facet_not_present_is_reported_as_bad_cast_with_an_empty_line) {
  EXPECT_ABORT(std::bad_cast::__throw(__vel::facet_not_present_message),
               "bad_cast: Facet not present\n\n");
}

TEST(invalid_locale_name_is_reported_as_runtime_error_with_an_empty_line) {
  EXPECT_ABORT(std::runtime_error::__throw(__vel::invalid_locale_name_message),
               "runtime_error: Invalid locale name\n\n");
}

TEST(out_of_memory_prints_the_allocation_message_and_exits_with_1) {
  EXPECT_EXIT(__vel::out_of_memory(), 1, "Lorb++ : Could not allocate  memory ...\n");
}

// Every __throw routine with a text of the caller's own.

TEST(invalid_argument_throw_prints_its_class_name) {
  EXPECT_ABORT(std::invalid_argument::__throw("bad digit"), "invalid_argument: bad digit\n");
}

TEST(length_error_throw_prints_its_class_name) {
  EXPECT_ABORT(std::length_error::__throw("too long"), "length_error: too long\n");
}

TEST(out_of_range_throw_prints_its_class_name) {
  EXPECT_ABORT(std::out_of_range::__throw("past the end"), "out_of_range: past the end\n");
}

TEST(runtime_error_throw_prints_its_class_name) {
  EXPECT_ABORT(std::runtime_error::__throw("no such locale"), "runtime_error: no such locale\n");
}

TEST(overflow_error_throw_prints_its_class_name) {
  EXPECT_ABORT(std::overflow_error::__throw("too big"), "overflow_error: too big\n");
}

TEST(bad_cast_throw_prints_its_class_name) {
  EXPECT_ABORT(std::bad_cast::__throw("wrong type"), "bad_cast: wrong type\n");
}

TEST(throw_text_is_printed_as_data_not_as_a_format) {
  EXPECT_ABORT(std::out_of_range::__throw("100% %s"), "out_of_range: 100% %s\n");
}

TEST(throw_with_exceptions_disabled_prints_both_texts_and_aborts) {
  EXPECT_ABORT(__vel::throw_with_exceptions_disabled("any_class", "any message"),
               "any_class: any message\n");
}

TEST(throw_with_an_empty_message_still_prints_the_blank) {
  EXPECT_ABORT(__vel::throw_with_exceptions_disabled("c", ""), "c: \n");
}

// What happens to static objects when a report ends the process.

static void announce_destruction(void*, int) { fputs("destroyed\n", stdout); }

static void record_announcing_node() {
  static __lorb_destruction_node node = {0, &node, announce_destruction};
  __record_needed_destruction(&node);
}

static void record_then_throw() {
  record_announcing_node();
  std::out_of_range::__throw("x");
}

static void record_then_run_out_of_memory() {
  record_announcing_node();
  __vel::out_of_memory();
}

static void record_then_report_error() {
  record_announcing_node();
  std::__trelk_report_error("fatal");
}

TEST(an_abort_report_runs_no_recorded_destructor) {
  EXPECT_CHILD(record_then_throw(), lt::aborts(), "", "out_of_range: x\n");
}

TEST(out_of_memory_runs_the_recorded_destructors_through_exit) {
  EXPECT_CHILD(record_then_run_out_of_memory(), lt::exits(1), "destroyed\n",
               "Lorb++ : Could not allocate  memory ...\n");
}

// The message goes out as a format with nothing added.

TEST(issue_msg_to_stderr_prints_the_text_without_a_newline) {
  EXPECT_CHILD(std::exception::__issue_msg_to_stderr("no newline"), lt::exits(0), "", "no newline");
}

TEST(issue_msg_to_stderr_uses_the_text_as_the_format) {
  EXPECT_CHILD(std::exception::__issue_msg_to_stderr("100%% sure\n"), lt::exits(0), "",
               "100% sure\n");
}

TEST(issue_msg_to_stderr_prints_the_allocation_message_exactly) {
  EXPECT_CHILD(std::exception::__issue_msg_to_stderr(__vel::out_of_memory_message), lt::exits(0),
               "", "Lorb++ : Could not allocate  memory ...\n");
}

// The plain report: text, newline, exit(1).

TEST(trelk_report_error_prints_the_text_and_a_newline_and_exits_with_1) {
  EXPECT_EXIT(std::__trelk_report_error("Something failed"), 1, "Something failed\n");
}

TEST(trelk_report_error_keeps_a_trailing_newline_and_adds_another) {
  EXPECT_EXIT(std::__trelk_report_error("line\n"), 1, "line\n\n");
}

TEST(trelk_report_error_prints_percent_signs_as_they_are) {
  EXPECT_EXIT(std::__trelk_report_error("50% %d"), 1, "50% %d\n");
}

TEST(trelk_report_error_runs_the_recorded_destructors_through_exit) {
  EXPECT_CHILD(record_then_report_error(), lt::exits(1), "destroyed\n", "fatal\n");
}
