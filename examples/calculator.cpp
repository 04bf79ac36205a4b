// A small calculator: reads one expression a line from standard input, such as "3 + 4 * 2" or
// "(1.5 - 4) / 2", and prints its value. * and / go before + and -, parentheses go first.
//   calculator < examples/input/calculator.txt
#include <cstdio> // EOF, what peek() gives at the end of the text
#include <iostream>
#include <sstream>
#include <string>

// Reads one expression from a stream of characters. Each function reads one level of the rules
//   expression: term, then any number of "+ term" or "- term"
//   term:       factor, then any number of "* factor" or "/ factor"
//   factor:     a number, "- factor", or "( expression )"
// and returns its value; the first mistake found is kept in error.
class parser {
public:
  explicit parser(const std::string& text) : in(text) {}

  // The value of the whole text; false when the text is not one well-formed expression.
  bool evaluate(double& value) {
    value = expression();
    if (error.empty() && next() != EOF)
      error = "unexpected '" + std::string(1, static_cast<char>(next())) + "'";
    return error.empty();
  }

  std::string error;

private:
  std::istringstream in;

  // The next character that is not a space, left in the stream; EOF at the end of the line.
  int next() {
    in >> std::ws; // skips spaces
    return in.peek();
  }

  double expression() {
    double value = term();
    while (error.empty() && (next() == '+' || next() == '-')) {
      char op = static_cast<char>(in.get());
      double right = term();
      value = op == '+' ? value + right : value - right;
    }
    return value;
  }

  double term() {
    double value = factor();
    while (error.empty() && (next() == '*' || next() == '/')) {
      char op = static_cast<char>(in.get());
      double right = factor();
      if (op == '/' && right == 0 && error.empty())
        error = "division by zero";
      value = op == '*' ? value * right : value / right;
    }
    return value;
  }

  double factor() {
    int c = next();
    if (c == '-') {
      in.get();
      return -factor();
    }
    if (c == '(') {
      in.get();
      double value = expression();
      if (error.empty() && next() != ')')
        error = "missing ')'";
      in.get();
      return value;
    }
    // The number itself is read with >>, which stops at the first character that cannot be part
    // of it. Only a digit or a point is let through: >> would also take a sign, but here a sign
    // is an operator of its own.
    double value = 0;
    if ((c >= '0' && c <= '9') || c == '.') {
      if (in >> value)
        return value;
    }
    if (error.empty())
      error = c == EOF ? "expression ends too early" : "expected a number";
    return 0;
  }
};

int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    if (line.find_first_not_of(" \t") == std::string::npos)
      continue; // nothing on this line
    parser calc(line);
    double value;
    if (calc.evaluate(value))
      std::cout << line << " = " << value << '\n';
    else
      std::cout << line << ": error: " << calc.error << '\n';
  }
  return 0;
}
