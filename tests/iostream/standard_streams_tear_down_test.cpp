// cin, cout, cerr and clog: the tear-down when the last Init goes, by hand and at exit.
#include "standard_streams_support.h"

// Tear-down.

ISOLATED_TEST(the_library_records_its_two_inits_for_destruction) {
  lt::scratch_file out;
  redirected to_file(stdout, out.path());
  __process_needed_destructions();
  int after_list = std::ios_base::Init::init_cnt;
  // This unit's Init still holds the streams.
  std::cout.write("alive", 5);
  fflush(stdout);
  char written[64];
  strcpy(written, out.contents());
  to_file.restore();
  CHECK_EQ(after_list, this_units_inits);
  CHECK_STR(written, "alive");
  leave_child();
}

ISOLATED_TEST(tear_down_flushes_the_three_output_streams_then_destroys_the_four) {
  noting_buffer o('o'), e('e'), l('l');
  std::cout.rdbuf(&o);
  std::cerr.rdbuf(&e);
  std::clog.rdbuf(&l);
  watch_erase_of_the_four_streams();
  std::__ioinit.~Init();
  CHECK_STR(trace, "");
  CHECK_EQ(std::ios_base::Init::init_cnt, library_inits);
  __process_needed_destructions();
  CHECK_EQ(std::ios_base::Init::init_cnt, 0);
  // cout.flush(); cerr.flush() flushes its tie, syncs, and syncs again for unitbuf;
  // clog.flush() flushes its tie and syncs. Then cin, clog, cerr, cout are destroyed.
  CHECK_STR(trace, "o"
                   "oee"
                   "ol"
                   "ILEO");
  leave_child();
}

ISOLATED_TEST(tear_down_deletes_the_three_file_buffers_in_order) {
  void* fin = std::__trelk_fin;
  void* fout = std::__trelk_fout;
  void* ferr = std::__trelk_ferr;
  logging_deletes = true;
  tear_down_by_hand();
  logging_deletes = false;
  char order[8] = "";
  for (int i = 0; i < deleted_count; ++i) {
    if (deleted[i] == fin)
      strcat(order, "i");
    else if (deleted[i] == fout)
      strcat(order, "o");
    else if (deleted[i] == ferr)
      strcat(order, "e");
  }
  CHECK_STR(order, "ioe");
  leave_child();
}

ISOLATED_TEST(tear_down_flushes_stdout_and_leaves_it_open) {
  lt::scratch_file out;
  redirected to_file(stdout, out.path());
  std::cout << "pending";
  long waiting = out.size();
  tear_down_by_hand();
  char after_tear_down[64];
  strcpy(after_tear_down, out.contents());
  int still_open = fd_is_open(fileno(stdout));
  int put = fputs(" and more", stdout);
  int flushed = fflush(stdout);
  char at_the_end[64];
  strcpy(at_the_end, out.contents());
  to_file.restore();
  CHECK_EQ(waiting, 0);
  CHECK_STR(after_tear_down, "pending");
  CHECK(still_open);
  CHECK(put >= 0);
  CHECK_EQ(flushed, 0);
  CHECK_STR(at_the_end, "pending and more");
  leave_child();
}

ISOLATED_TEST(tear_down_flushes_stderr_and_leaves_stdin_and_stderr_open) {
  lt::scratch_file in("in");
  lt::scratch_file err;
  stdin_from(in.path());
  redirected to_file(stderr, err.path());
  std::clog << "logged";
  long waiting = err.size();
  tear_down_by_hand();
  char after_tear_down[64];
  strcpy(after_tear_down, err.contents());
  int c = fgetc(stdin);
  fputs(" then C", stderr);
  fflush(stderr);
  char at_the_end[64];
  strcpy(at_the_end, err.contents());
  to_file.restore();
  CHECK_EQ(waiting, 0);
  CHECK_STR(after_tear_down, "logged");
  CHECK_EQ(c, 'i');
  CHECK_STR(at_the_end, "logged then C");
  leave_child();
}

ISOLATED_TEST(a_failed_flush_at_tear_down_sets_a_bit_and_tear_down_goes_on) {
  noting_buffer o('o', -1), e('e'), l('l');
  std::cout.rdbuf(&o);
  std::cerr.rdbuf(&e);
  std::clog.rdbuf(&l);
  watch_erase_of_the_four_streams();
  tear_down_by_hand();
  // cout went bad at its own flush, so the ties of cerr and clog flush nothing more (each such
  // flush of the bad cout adds failbit), and their own flushes still run.
  CHECK_STR(trace, "o"
                   "ee"
                   "l"
                   "ILEO");
  CHECK_EQ(state_at_erase['O'], io::badbit | io::failbit);
  CHECK_EQ(state_at_erase['E'], io::goodbit);
  CHECK_EQ(state_at_erase['L'], io::goodbit);
  CHECK_EQ(state_at_erase['I'], io::goodbit);
  leave_child();
}

static void tear_down_with_a_failing_flush_and_badbit_in_the_mask() {
  static noting_buffer o('o', -1);
  std::cout.rdbuf(&o);
  std::cout.exceptions(io::badbit);
  tear_down_by_hand();
}

TEST(a_failed_flush_at_tear_down_with_badbit_in_the_mask_ends_the_program) {
  EXPECT_EXIT(tear_down_with_a_failing_flush_and_badbit_in_the_mask(), 1, "Failure in I/O\n");
}

// At a normal exit: the streams are flushed before they are destroyed, and stdout is still open
// after that (a node recorded during the tear-down runs right after it).

static void write_after_tear_down() { fputs("|after", stdout); }

static void note_erase_on_stdout(io::event ev, io&, int index) {
  if (ev != io::erase_event)
    return;
  char text[2] = {static_cast<char>(index), 0};
  if (write(1, text, 1) != 1)
    _exit(4);
  if (index == 'I')
    __vel_std_atexit(write_after_tear_down);
}

static void leave_with_pending_output() {
  setvbuf(stdout, 0, _IOFBF, BUFSIZ);
  std::cin.register_callback(note_erase_on_stdout, 'I');
  std::cout.register_callback(note_erase_on_stdout, 'O');
  std::cerr.register_callback(note_erase_on_stdout, 'E');
  std::clog.register_callback(note_erase_on_stdout, 'L');
  std::cout << "pending|";
}

TEST(at_exit_cout_is_flushed_before_the_streams_go_and_stdout_stays_open) {
  EXPECT_CHILD(leave_with_pending_output(), lt::exits(0), "pending|ILEO|after", "");
}
