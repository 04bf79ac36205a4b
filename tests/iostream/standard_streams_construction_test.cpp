// cin, cout, cerr and clog: what ios_base::Init builds, the count of Init objects, and the ties
// and unitbuf as they show on the C library's files.
#include "standard_streams_support.h"

// What Init built.

TEST(the_streams_use_the_library_file_buffers) {
  CHECK(std::__trelk_fin != 0);
  CHECK(std::__trelk_fout != 0);
  CHECK(std::__trelk_ferr != 0);
  CHECK(std::cin.rdbuf() == std::__trelk_fin);
  CHECK(std::cout.rdbuf() == std::__trelk_fout);
  CHECK(std::cerr.rdbuf() == std::__trelk_ferr);
  CHECK(std::clog.rdbuf() == std::__trelk_ferr);
  CHECK(static_cast<void*>(std::__trelk_fin) != static_cast<void*>(std::__trelk_fout));
  CHECK(static_cast<void*>(std::__trelk_fout) != static_cast<void*>(std::__trelk_ferr));
  CHECK(static_cast<void*>(std::__trelk_fin) != static_cast<void*>(std::__trelk_ferr));
}

TEST(the_file_buffers_are_attached_to_stdin_stdout_and_stderr) {
  CHECK(std::__trelk_fin->__file == stdin);
  CHECK(std::__trelk_fout->__file == stdout);
  CHECK(std::__trelk_ferr->__file == stderr);
  // Attached from a FILE*: no open mode is recorded.
  CHECK_EQ(std::__trelk_fin->__mode, 0);
  CHECK_EQ(std::__trelk_fout->__mode, 0);
  CHECK_EQ(std::__trelk_ferr->__mode, 0);
  CHECK(std::__trelk_fin->is_open());
  CHECK(std::__trelk_fout->is_open());
  CHECK(std::__trelk_ferr->is_open());
}

TEST(cin_cerr_and_clog_are_tied_to_cout_and_cout_to_nothing) {
  CHECK(std::cin.tie() == &std::cout);
  CHECK(std::cerr.tie() == &std::cout);
  CHECK(std::clog.tie() == &std::cout);
  CHECK(std::cout.tie() == 0);
}

TEST(only_cerr_has_unitbuf_beyond_the_default_flags) {
  const io::fmtflags defaults = io::skipws | io::dec;
  CHECK_EQ(std::cin.flags(), defaults);
  CHECK_EQ(std::cout.flags(), defaults);
  CHECK_EQ(std::cerr.flags(), defaults | io::unitbuf);
  CHECK_EQ(std::clog.flags(), defaults);
}

TEST(the_streams_start_with_the_default_format_and_a_good_state) {
  for (int i = 0; i < 4; ++i) {
    std::basic_ios<char>& s = *all_four[i];
    if (!CHECK_EQ(s.precision(), 6) || !CHECK_EQ(s.width(), 0) || !CHECK_EQ(s.fill(), ' ') ||
        !CHECK_EQ(s.rdstate(), io::goodbit) || !CHECK_EQ(s.exceptions(), io::goodbit))
      fprintf(stderr, "  in %s\n", all_four_names[i]);
  }
  CHECK_EQ(std::cin.gcount(), 0);
}

TEST(the_streams_start_with_the_locale_that_was_global_at_start_up) {
  for (int i = 0; i < 4; ++i)
    if (!CHECK(all_four[i]->getloc() == std::locale::classic()))
      fprintf(stderr, "  in %s\n", all_four_names[i]);
}

// Counting Init objects.

TEST(init_count_is_two_for_the_library_and_one_for_this_unit) {
  CHECK_EQ(std::ios_base::Init::init_cnt, library_inits + this_units_inits);
}

TEST(a_user_init_changes_only_the_count) {
  const int before = std::ios_base::Init::init_cnt;
  std::basic_filebuf<char>* fin = std::__trelk_fin;
  std::basic_filebuf<char>* fout = std::__trelk_fout;
  std::basic_filebuf<char>* ferr = std::__trelk_ferr;
  const int news = filebuf_news;
  {
    std::ios_base::Init first;
    CHECK_EQ(std::ios_base::Init::init_cnt, before + 1);
    {
      std::ios_base::Init more[5];
      CHECK_EQ(std::ios_base::Init::init_cnt, before + 6);
    }
    std::ios_base::Init* on_the_heap = new std::ios_base::Init;
    CHECK_EQ(std::ios_base::Init::init_cnt, before + 2);
    delete on_the_heap;
    CHECK_EQ(std::ios_base::Init::init_cnt, before + 1);
  }
  CHECK_EQ(std::ios_base::Init::init_cnt, before);
  // Nothing was built or torn down.
  CHECK_EQ(filebuf_news, news);
  CHECK(std::__trelk_fin == fin);
  CHECK(std::__trelk_fout == fout);
  CHECK(std::__trelk_ferr == ferr);
  CHECK(std::cout.rdbuf() == fout);
  CHECK(std::cin.tie() == &std::cout);
  CHECK(fout->__file == stdout);
}

static void write_after_user_inits() {
  {
    std::ios_base::Init user;
    std::cout << "inside ";
  }
  std::cout << "after " << 3 << '\n';
  std::cerr << "still " << 4 << '\n';
}

TEST(the_streams_still_write_after_a_user_init_is_gone) {
  EXPECT_CHILD(write_after_user_inits(), lt::exits(0), "inside after 3\n", "still 4\n");
}

// unitbuf on cerr, as stderr sees it.

ISOLATED_TEST(cerr_output_reaches_stderr_at_once) {
  lt::scratch_file err;
  redirected to_file(stderr, err.path());
  // Control: the C library keeps what is written straight to stderr.
  fputs("c:", stderr);
  long kept = err.size();
  std::cerr << "x";
  char after_insertion[64];
  strcpy(after_insertion, err.contents());
  to_file.restore();
  CHECK_EQ(kept, 0);
  CHECK_STR(after_insertion, "c:x");
}

ISOLATED_TEST(every_kind_of_cerr_output_reaches_stderr_at_once) {
  lt::scratch_file err;
  redirected to_file(stderr, err.path());
  char seen[8][64];
  std::cerr << "text";
  strcpy(seen[0], err.contents());
  std::cerr << -42;
  strcpy(seen[1], err.contents());
  std::cerr << 'c';
  strcpy(seen[2], err.contents());
  std::cerr.put('p');
  strcpy(seen[3], err.contents());
  std::cerr.write("wr", 2);
  strcpy(seen[4], err.contents());
  std::cerr << 2.5;
  strcpy(seen[5], err.contents());
  std::cerr << std::string("str");
  strcpy(seen[6], err.contents());
  std::cerr << std::endl;
  strcpy(seen[7], err.contents());
  to_file.restore();
  CHECK_STR(seen[0], "text");
  CHECK_STR(seen[1], "text-42");
  CHECK_STR(seen[2], "text-42c");
  CHECK_STR(seen[3], "text-42cp");
  CHECK_STR(seen[4], "text-42cpwr");
  CHECK_STR(seen[5], "text-42cpwr2.5");
  CHECK_STR(seen[6], "text-42cpwr2.5str");
  CHECK_STR(seen[7], "text-42cpwr2.5str\n");
}

ISOLATED_TEST(clog_output_waits_in_stderrs_buffer) {
  lt::scratch_file err;
  redirected to_file(stderr, err.path());
  std::clog << "log" << 1;
  long waiting = err.size();
  std::clog << std::flush;
  char flushed[64];
  strcpy(flushed, err.contents());
  to_file.restore();
  CHECK_EQ(waiting, 0);
  CHECK_STR(flushed, "log1");
}

ISOLATED_TEST(cerr_and_clog_interleave_in_program_order) {
  lt::scratch_file err;
  redirected to_file(stderr, err.path());
  for (int i = 0; i < 20; ++i) {
    if (i % 3 == 0)
      std::cerr << 'E' << i;
    else
      std::clog << 'L' << i;
    if (i % 4 == 0)
      fprintf(stderr, "F%d", i);
  }
  fflush(stderr);
  char all[256];
  strcpy(all, err.contents());
  to_file.restore();
  char expected[256] = "";
  for (int i = 0; i < 20; ++i) {
    sprintf(expected + strlen(expected), "%c%d", i % 3 == 0 ? 'E' : 'L', i);
    if (i % 4 == 0)
      sprintf(expected + strlen(expected), "F%d", i);
  }
  CHECK_STR(all, expected);
}

// The ties, as stdout sees them.

ISOLATED_TEST(reading_from_cin_flushes_cout_first) {
  lt::scratch_file in("42 rest\n");
  lt::scratch_file out;
  stdin_from(in.path());
  redirected to_file(stdout, out.path());
  std::cout << "number? ";
  long waiting = out.size();
  int n = 0;
  std::cin >> n;
  char after_read[64];
  strcpy(after_read, out.contents());
  to_file.restore();
  CHECK_EQ(waiting, 0);
  CHECK_STR(after_read, "number? ");
  CHECK_EQ(n, 42);
}

ISOLATED_TEST(unformatted_reading_from_cin_flushes_cout_too) {
  lt::scratch_file in("ab\ncd\n");
  lt::scratch_file out;
  stdin_from(in.path());
  redirected to_file(stdout, out.path());
  std::cout << "one ";
  int c = std::cin.get();
  char after_get[64];
  strcpy(after_get, out.contents());
  std::cout << "two ";
  char line[16];
  std::cin.getline(line, sizeof line);
  char after_getline[64];
  strcpy(after_getline, out.contents());
  std::cout << "three ";
  std::string word;
  std::cin >> word;
  char after_string[64];
  strcpy(after_string, out.contents());
  to_file.restore();
  CHECK_EQ(c, 'a');
  CHECK_STR(after_get, "one ");
  CHECK_STR(line, "b");
  CHECK_STR(after_getline, "one two ");
  CHECK(word == "cd");
  CHECK_STR(after_string, "one two three ");
}

ISOLATED_TEST(a_cin_that_is_not_good_leaves_cout_unflushed) {
  lt::scratch_file in("7");
  lt::scratch_file out;
  stdin_from(in.path());
  redirected to_file(stdout, out.path());
  std::cin.setstate(io::eofbit);
  std::cout << "waiting";
  int n = 0;
  std::cin >> n;
  long after_failed_read = out.size();
  to_file.restore();
  CHECK_EQ(after_failed_read, 0);
  CHECK_EQ(std::cin.rdstate(), io::eofbit | io::failbit);
  CHECK_EQ(n, 0);
}

ISOLATED_TEST(output_to_cerr_flushes_cout_first) {
  lt::scratch_file out, err;
  redirected out_to_file(stdout, out.path());
  redirected err_to_file(stderr, err.path());
  std::cout << "before";
  long waiting = out.size();
  std::cerr << "!";
  char out_after[64], err_after[64];
  strcpy(out_after, out.contents());
  strcpy(err_after, err.contents());
  err_to_file.restore();
  out_to_file.restore();
  CHECK_EQ(waiting, 0);
  CHECK_STR(out_after, "before");
  CHECK_STR(err_after, "!");
}

ISOLATED_TEST(output_to_clog_flushes_cout_first) {
  lt::scratch_file out, err;
  redirected out_to_file(stdout, out.path());
  redirected err_to_file(stderr, err.path());
  std::cout << "before";
  long waiting = out.size();
  std::clog << "!";
  char out_after[64];
  strcpy(out_after, out.contents());
  long err_after = err.size();
  err_to_file.restore();
  out_to_file.restore();
  CHECK_EQ(waiting, 0);
  CHECK_STR(out_after, "before");
  // clog has no unitbuf: its own output still waits.
  CHECK_EQ(err_after, 0);
}

ISOLATED_TEST(output_to_a_clog_that_is_not_good_leaves_cout_unflushed) {
  lt::scratch_file out, err;
  redirected out_to_file(stdout, out.path());
  redirected err_to_file(stderr, err.path());
  std::cout << "waiting";
  std::clog.setstate(io::failbit);
  std::clog << "lost";
  long out_after = out.size();
  fflush(stderr);
  long err_after = err.size();
  err_to_file.restore();
  out_to_file.restore();
  CHECK_EQ(out_after, 0);
  CHECK_EQ(err_after, 0);
  CHECK_EQ(std::clog.rdstate(), io::failbit);
}

ISOLATED_TEST(output_to_cout_flushes_nothing_else) {
  lt::scratch_file out, err;
  redirected out_to_file(stdout, out.path());
  redirected err_to_file(stderr, err.path());
  std::clog << "log";
  std::cout << "out";
  long out_after = out.size();
  long err_after = err.size();
  err_to_file.restore();
  out_to_file.restore();
  CHECK_EQ(out_after, 0);
  CHECK_EQ(err_after, 0);
}
