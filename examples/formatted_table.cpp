// Writes a small price table to a file with std::ofstream, lining the columns up with setw,
// left/right/internal, setfill, fixed and setprecision, then reads the file back and prints it.
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <string>

struct stock_item {
  const char* name;
  int quantity;
  double price;
  int change; // since last week
  int code;
};

static const stock_item items[] = {
    {"apples", 120, 0.45, 3, 42},
    {"bread", 8, 2.2, -12, 255},
    {"coffee beans", 35, 11.998, 0, 4096},
    {"dates", 1500, 0.35, 250, 7},
};
static const int item_count = sizeof items / sizeof items[0];

// Text and numbers are not padded on the same side unless told, so every column says left or
// right; setw is used up by the next item written and has to be given again for each one.
static void write_header(std::ofstream& out) {
  out << std::left << std::setw(14) << "item" << std::right << std::setw(6) << "qty" << std::setw(9)
      << "price" << std::setw(8) << "change" << std::setw(8) << "code" << '\n';
  // An empty string padded with '-' draws the rule under the header.
  out << std::setfill('-') << std::setw(45) << "" << std::setfill(' ') << '\n';
}

static void write_row(std::ofstream& out, const stock_item& item) {
  out << std::left << std::setw(14) << item.name;
  out << std::right << std::setw(6) << item.quantity;
  // fixed with setprecision(2): always two decimals, rounded; both stay until changed.
  out << std::fixed << std::setprecision(2) << std::setw(9) << item.price;
  // internal puts the padding between the sign and the digits: +0003, -0012.
  out << "   " << std::internal << std::showpos << std::setfill('0') << std::setw(5) << item.change
      << std::noshowpos;
  // ... and between the 0x of a hexadecimal number and its digits: 0x002a.
  out << "  " << std::hex << std::showbase << std::setw(6) << item.code << std::dec
      << std::noshowbase << std::setfill(' ') << '\n';
}

static void write_total(std::ofstream& out) {
  int quantity = 0;
  double value = 0;
  for (int i = 0; i < item_count; ++i) {
    quantity += items[i].quantity;
    value += items[i].quantity * items[i].price;
  }
  out << std::left << std::setw(14) << "total" << std::right << std::setw(6) << quantity
      << std::setw(9) << value << "  (value of the stock)\n";
}

int main() {
  const char* path = "/tmp/lorb-formatted-table.txt";
  std::ofstream out(path);
  if (!out) {
    fprintf(stderr, "cannot open %s\n", path);
    return 1;
  }
  write_header(out);
  for (int i = 0; i < item_count; ++i)
    write_row(out, items[i]);
  write_total(out);
  out.close(); // hands the last characters to the file
  if (!out) {
    fprintf(stderr, "writing %s failed\n", path);
    return 1;
  }

  // The file is read back line by line and shown on the terminal.
  std::cout << path << " holds:\n";
  std::ifstream in(path);
  if (!in) {
    std::cerr << "cannot read " << path << " back\n";
    return 1;
  }
  std::string line;
  while (std::getline(in, line))
    std::cout << line << '\n';
  in.close();
  remove(path);
  return 0;
}
