#!/bin/sh
# Output written through cout, cerr and clog, mixed with the C library's own output, is never lost
# and keeps its order, however the program ends (return from main, the C library's exit, exit(int)
# with the language's linkage) and wherever it goes (a file, a pipe). Standard output and standard
# error are compared byte for byte, apart and, where a helper fixes the C library's buffering,
# together in one file.
# Arguments: the helpers output_return, output_exit, output_cxx_exit, output_many_lines,
# output_ties and output_prompt, in this order.
set -u
return_helper=$1 exit_helper=$2 cxx_exit_helper=$3 many_lines_helper=$4 ties_helper=$5
prompt_helper=$6
work=$(mktemp -d "${TMPDIR:-/tmp}/lorb-output-not-lost.XXXXXX") || exit 2
trap 'rm -rf "$work"' EXIT
passed=0 failed=0

# same LABEL ACTUAL EXPECTED: the two files hold the same bytes.
same() {
  if cmp -s "$2" "$3"; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAIL $1"
    echo "  expected:"
    od -c "$3" | head -20
    echo "  got:"
    od -c "$2" | head -20
  fi
}

# status LABEL EXPECTED: the status the last run recorded.
status() {
  got=$(cat "$work/status")
  if [ "$got" = "$2" ]; then
    passed=$((passed + 1))
  else
    failed=$((failed + 1))
    echo "FAIL $1: exit status $got, expected $2"
  fi
}

# Each run reads INPUT and records its exit status in $work/status.
to_files() { # PROGRAM INPUT
  ${LORB_I386_LAUNCHER:-} "$1" < "$2" > "$work/out" 2> "$work/err"
  echo $? > "$work/status"
}
to_pipes() { # PROGRAM INPUT
  { { ${LORB_I386_LAUNCHER:-} "$1" < "$2"; echo $? > "$work/status"; } 2>&1 1>&3 3>&- |
    cat > "$work/err"; } 3>&1 | cat > "$work/out"
}
together_to_a_file() { # PROGRAM INPUT
  ${LORB_I386_LAUNCHER:-} "$1" < "$2" > "$work/all" 2>&1
  echo $? > "$work/status"
}
together_to_a_pipe() { # PROGRAM INPUT
  { ${LORB_I386_LAUNCHER:-} "$1" < "$2" 2>&1; echo $? > "$work/status"; } | cat > "$work/all"
}

# check_apart NAME PROGRAM INPUT STATUS: standard output and error as $work/want_out and
# $work/want_err say, through files and through pipes.
check_apart() {
  for way in to_files to_pipes; do
    rm -f "$work/out" "$work/err" "$work/status"
    $way "$2" "$3"
    same "$1 $way: standard output" "$work/out" "$work/want_out"
    same "$1 $way: standard error" "$work/err" "$work/want_err"
    status "$1 $way" "$4"
  done
}

# check_together NAME PROGRAM INPUT STATUS: both in one file, as $work/want_all says.
check_together() {
  for way in together_to_a_file together_to_a_pipe; do
    rm -f "$work/all" "$work/status"
    $way "$2" "$3"
    same "$1 $way" "$work/all" "$work/want_all"
    status "$1 $way" "$4"
  done
}

: > "$work/empty"

# The same output, ended three ways; unterminated last lines included.
printf 'cout 1 42\nprintf 2\ncout 3 printf 4\ncout 5 unterminated' > "$work/want_out"
printf 'cerr 1\nfprintf 2\nclog 3 2.5\nclog 4 unterminated' > "$work/want_err"
check_apart "return from main" "$return_helper" "$work/empty" 0
check_apart "exit(7)" "$exit_helper" "$work/empty" 7
check_apart "exit(int) of the language" "$cxx_exit_helper" "$work/empty" 5

# Far more than a buffer's worth.
awk 'BEGIN { for (i = 0; i < 20000; ++i) print "line " i; printf "end" }' > "$work/want_out"
awk 'BEGIN { for (i = 0; i < 20000; ++i) {
               if (i % 97 == 0) print "cerr " i
               if (i % 101 == 0) print "clog " i } }' > "$work/want_err"
check_apart "many lines" "$many_lines_helper" "$work/empty" 0

# Ties: what cout holds goes out before cerr's or clog's own output.
printf 'acegi\n' > "$work/want_out"
printf 'BDFHJ\n' > "$work/want_err"
check_apart "ties" "$ties_helper" "$work/empty" 0
printf 'aBcDFegHJ\ni\n' > "$work/want_all"
check_together "ties" "$ties_helper" "$work/empty" 0

# A read from cin puts out the prompt first.
printf 'world\n21\n' > "$work/input"
printf 'name? hello world\nnumber? 42\n' > "$work/want_out"
printf '[read][read]' > "$work/want_err"
check_apart "prompt" "$prompt_helper" "$work/input" 0
printf 'name? [read]hello world\nnumber? [read]42\n' > "$work/want_all"
check_together "prompt" "$prompt_helper" "$work/input" 0

echo "$passed passed, $failed failed"
[ "$failed" = 0 ]
