// std::string for newcomers: building, searching, changing, and how copies share characters.
#include <stdio.h>
#include <string>

int main() {
  std::string greeting("Hello");
  greeting += ", world";
  greeting.append(1, '!');
  printf("%s (%u characters)\n", greeting.c_str(), static_cast<unsigned>(greeting.size()));

  std::string::size_type comma = greeting.find(',');
  std::string first_word = greeting.substr(0, comma);
  printf("first word: %s, found at 0..%u\n", first_word.c_str(), static_cast<unsigned>(comma));

  std::string copy = greeting; // shares the characters until one of the two changes
  printf("copy shares the characters: %s\n", copy.data() == greeting.data() ? "yes" : "no");
  copy.replace(0, 5, "Goodbye");
  printf("after replace: copy is \"%s\", original is still \"%s\"\n", copy.c_str(),
         greeting.c_str());

  std::string path("/usr/local/lib");
  std::string::size_type slash = path.find_last_of('/');
  printf("directory %s, name %s\n", path.substr(0, slash).c_str(), path.substr(slash + 1).c_str());

  std::string padded("   trim me   ");
  std::string::size_type begin = padded.find_first_not_of(' ');
  std::string::size_type end = padded.find_last_not_of(' ');
  printf("trimmed: [%s]\n", padded.substr(begin, end - begin + 1).c_str());

  std::string grown;
  for (int i = 0; i < 40; ++i)
    grown += static_cast<char>('a' + i % 26);
  printf("40 characters live in a buffer of %u bytes (buffers grow in steps of 32)\n",
         static_cast<unsigned>(grown.capacity()));
  printf("\"apple\" < \"banana\": %s\n", std::string("apple") < "banana" ? "true" : "false");
  return 0;
}
