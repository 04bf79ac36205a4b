# Recipe for tinyxml (Debian package tinyxml): the library and its xmltest, std::string and
# stream interfaces on; xmltest checks parsing, printing, streams and files and returns the
# number of failed checks.
. "$(dirname "$0")/recipe.sh"

# TIXML_USE_STL: the std::string/istream/ostream interface, as Debian builds the library
# (debian/patches/enforce-use-stl.patch). tinyxml needs neither exceptions nor RTTI.
for f in tinystr tinyxml tinyxmlerror tinyxmlparser xmltest; do
  compile $CXX -std=gnu++98 -O2 -DTIXML_USE_STL -c "$src/$f.cpp" -o "$out/$f.o"
done
compile $CXX -o "$out/xmltest" "$out"/tinystr.o "$out"/tinyxml.o "$out"/tinyxmlerror.o \
  "$out"/tinyxmlparser.o "$out"/xmltest.o

# xmltest reads its input files from, and writes its own files to, the current directory.
cp "$src/utf8test.xml" "$src/utf8testverify.xml" "$out/"
run_test xmltest $RUN ./xmltest
# Its last line: "Pass P, Fail F".
read -r pass failed <<COUNTS
$(sed -n 's/^Pass \([0-9]*\), Fail \([0-9]*\)$/\1 \2/p' "$out/outputs/xmltest.txt")
COUNTS
count_checks "$pass" "${failed:+$((pass + failed))}"
for f in demotest.xml utf8testout.xml test5.xml test6.xml test7.xml textfile.txt; do
  keep_output "xmltest-$f" "$f"
done
