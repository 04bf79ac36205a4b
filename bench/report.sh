#!/usr/bin/env bash
# Turns what bench/run.sh measured (results.tsv and hello.txt in the given folder) into a Markdown
# table (results.md) and a bar chart of the ratios (ratios.svg), with the date and the machine.
set -euo pipefail
out=$1
results=$out/results.tsv
hello=$out/hello.txt
machine="$(uname -m), $(grep -m1 'model name' /proc/cpuinfo 2>/dev/null | sed 's/.*: //'), $(nproc) CPUs"
mode=$(sh tools/i386-host.sh mode 2>/dev/null || echo unknown)
today=$(date -u +%Y-%m-%d)

{
  echo "Measured $today on $machine (i386 programs: $mode). Ratio = Lorb++ time / GNU time;"
  echo "below 1 means Lorb++ is faster. Best of several runs of each workload."
  echo
  echo "| workload | Lorb++ ns/op | GNU ns/op | ratio |"
  echo "|---|---:|---:|---:|"
  awk '{ printf "| %s | %.2f | %.2f | %.2f |\n", $1, $2, $3, $4 }' "$results"
  if [ -s "$hello" ]; then
    awk '$1 == "hello_world" {
      printf "\n| hello world, start to exit | Lorb++ us | GNU us | C us |\n|---|---:|---:|---:|\n"
      printf "| hello_world | %.1f | %.1f | %.1f |\n", $2, $3, $4
      printf "\nLorb++/GNU %.2f, Lorb++/C %.2f.\n", $2 / $3, $2 / $4 }' "$hello"
  fi
} > "$out/results.md"

# One horizontal bar a workload, its length the ratio; the line at 1 is parity with GNU.
awk -v today="$today" '
  { name[n] = $1; ratio[n] = $4; if ($4 > top) top = $4; n++ }
  END {
    if (top < 1.5) top = 1.5
    left = 300; width = 500; bar = 16; gap = 6; head = 40
    height = head + n * (bar + gap) + 30
    scale = width / top
    printf "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" font-family=\"sans-serif\" font-size=\"12\">\n", left + width + 60, height
    printf "<rect width=\"100%%\" height=\"100%%\" fill=\"white\"/>\n"
    printf "<text x=\"10\" y=\"20\" font-size=\"14\">Lorb++ time / GNU time (%s); left of the line is faster</text>\n", today
    for (i = 0; i < n; i++) {
      y = head + i * (bar + gap)
      colour = ratio[i] <= 1 ? "#3a7d44" : "#c0504d"
      printf "<text x=\"%d\" y=\"%d\" text-anchor=\"end\">%s</text>\n", left - 8, y + bar - 4, name[i]
      printf "<rect x=\"%d\" y=\"%d\" width=\"%.1f\" height=\"%d\" fill=\"%s\"/>\n", left, y, ratio[i] * scale, bar, colour
      printf "<text x=\"%.1f\" y=\"%d\">%.2f</text>\n", left + ratio[i] * scale + 4, y + bar - 4, ratio[i]
    }
    printf "<line x1=\"%.1f\" y1=\"%d\" x2=\"%.1f\" y2=\"%d\" stroke=\"black\" stroke-dasharray=\"4,3\"/>\n", left + scale, head - 6, left + scale, height - 24
    printf "<text x=\"%.1f\" y=\"%d\" text-anchor=\"middle\">1.0</text>\n", left + scale, height - 8
    printf "</svg>\n"
  }' "$results" > "$out/ratios.svg"
