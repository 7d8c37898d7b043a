#include "entry/modCalculate.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

#include "model/modCharacters.h"
#include "model/modDecim.h"

namespace tarnwick {
namespace {

constexpr int Rounds = 21;  // of every rewrite that goes on until nothing is left to do

// ---- the text before it is an equation

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Where `word`, in lower case, first stands in `text`; the case of `text` does not matter.
std::size_t Find(std::string_view text, std::string_view word) {
  const auto found = std::search(text.begin(), text.end(), word.begin(), word.end(),
                                 [](char a, char b) { return LowerCase(a) == b; });
  return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

struct UnitWord {
  std::string_view Text;  // in lower case
  std::size_t Characters;
};

// In the order in which they are looked for: a word stands behind the longer ones that contain it.
constexpr UnitWord UnitWords[] = {{"deg", 3}, {"in²", 3},  {"cm²", 3}, {"in", 2},  {"ft", 2}, {"mm", 2},
                                  {"cm", 2},  {"rpms", 4}, {"fpm", 3}, {"mpm", 3}, {"m", 1}};

struct FoundWord {
  std::size_t Place;
  UnitWord Word;
};

/// The first occurrence of the first word that occurs at all.
std::optional<FoundWord> FindUnitWord(std::string_view text) {
  for (const UnitWord& word : UnitWords) {
    const std::size_t place = Find(text, word.Text);
    if (place != std::string_view::npos) return FoundWord{place, word};
  }
  return std::nullopt;
}

/// Feet and inches together become one number of feet, whatever unit the box is in. False: `text` does not
/// hold both.
bool FeetInchesToFeet(std::string& text, int decimalPlaces) {
  const std::size_t place = Find(text, "ft");
  if (place == std::string::npos || Find(text, "in") == std::string::npos) return false;
  const double feet = ReadNumber(text);
  // One character more than "ft" is passed over, as a blank is expected there: "5ft6in" is 5 feet.
  std::string_view rest = std::string_view(text).substr(place + 2);
  rest.remove_prefix(CharacterSize(rest));
  const double inches = ReadNumber(rest);
  text = PlainText(feet + RoundTo(inches / InchesPerFoot, decimalPlaces));
  return true;
}

void StripUnits(std::string& text, int decimalPlaces) {
  if (FeetInchesToFeet(text, decimalPlaces)) return;
  for (int round = 0; round < Rounds; ++round) {
    const std::optional<FoundWord> found = FindUnitWord(text);
    if (!found) return;
    text.replace(found->Place, found->Word.Text.size(), found->Word.Characters, ' ');
  }
}

// ---- the equation

/// One character a cell; a 0 ends the text. The last cell is always 0.
using Buffer = std::array<char, 81>;
constexpr std::size_t Room = std::tuple_size_v<Buffer> - 1;

constexpr char Foreign = '\x7F';  // stands for every character beyond ASCII: none belongs to an equation

/// What does not fit is lost.
Buffer BufferOf(std::string_view text) {
  Buffer buffer{};
  for (std::size_t cell = 0; cell < Room && !text.empty(); ++cell) {
    const bool ascii = static_cast<unsigned char>(text.front()) < 0x80;
    buffer[cell] = ascii ? text.front() : Foreign;
    text.remove_prefix(CharacterSize(text));
  }
  return buffer;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

void SkipDigits(const Buffer& buffer, std::size_t& cursor) {
  while (IsDigit(buffer[cursor])) ++cursor;
}

void SkipBlanks(const Buffer& buffer, std::size_t& cursor) {
  while (buffer[cursor] == ' ') ++cursor;
}

/// Digits, blanks, digits, "/", digits and nothing else; every run of digits may be empty.
bool IsMixedNumber(const Buffer& buffer) {
  std::size_t cursor = 0;
  SkipDigits(buffer, cursor);
  if (buffer[cursor] != ' ') return false;
  SkipBlanks(buffer, cursor);
  SkipDigits(buffer, cursor);
  SkipBlanks(buffer, cursor);
  if (buffer[cursor] != '/') return false;
  ++cursor;
  SkipBlanks(buffer, cursor);
  SkipDigits(buffer, cursor);
  SkipBlanks(buffer, cursor);
  return buffer[cursor] == '\0';
}

/// "3 1/2" becomes "3+1/2" once the blanks are gone.
void MixedToSum(Buffer& buffer) {
  std::size_t cursor = 0;
  SkipDigits(buffer, cursor);
  if (buffer[cursor] == ' ') buffer[cursor] = '+';
}

void StripBlanks(Buffer& buffer) {
  std::fill(std::remove(buffer.begin(), buffer.end(), ' '), buffer.end(), '\0');
}

/// Only digits, points, operators and brackets, of which as many close as open; ")(" passes.
bool IsValidEquation(const Buffer& buffer) {
  int depth = 0;
  for (std::size_t cell = 0; buffer[cell] != '\0'; ++cell) {
    const char c = buffer[cell];
    if (c < '(' || c > '9' || c == ',') return false;
    if (c == '(') ++depth;
    if (c == ')') --depth;
  }
  return depth == 0;
}

// ---- its value: sums of terms of factors, each leaving the cursor behind what it took

double ParseSum(const Buffer& buffer);

/// The inside of the brackets that open at the cursor. The end of the text closes them too.
Buffer CopyBracket(const Buffer& buffer, std::size_t& cursor) {
  Buffer inside{};
  int depth = 0;
  ++cursor;
  for (std::size_t cell = 0; buffer[cursor] != '\0'; ++cell) {
    const char c = buffer[cursor++];
    if (c == ')' && depth == 0) break;
    if (c == '(') ++depth;
    if (c == ')') --depth;
    inside[cell] = c;
  }
  return inside;
}

/// Brackets or a number; where neither stands, 0, and the cursor stays.
double ParseFactor(const Buffer& buffer, std::size_t& cursor) {
  if (buffer[cursor] == '(') return ParseSum(CopyBracket(buffer, cursor));
  const std::size_t first = cursor;
  SkipDigits(buffer, cursor);
  if (buffer[cursor] == '.') {
    ++cursor;
    SkipDigits(buffer, cursor);
  }
  return ReadNumber(std::string_view(buffer.data() + first, cursor - first));
}

double ParseTerm(const Buffer& buffer, std::size_t& cursor) {
  double value = ParseFactor(buffer, cursor);
  for (;;) {
    switch (buffer[cursor]) {
      case '*':
        value *= ParseFactor(buffer, ++cursor);
        break;
      case '/':
        value /= ParseFactor(buffer, ++cursor);  // by zero too: infinity and NaN go on
        break;
      default:
        return value;
    }
  }
}

double ParseSum(const Buffer& buffer) {
  std::size_t cursor = 0;
  double value = ParseTerm(buffer, cursor);
  for (;;) {
    switch (buffer[cursor]) {
      case '+':
        value += ParseTerm(buffer, ++cursor);
        break;
      case '-':
        value -= ParseTerm(buffer, ++cursor);
        break;
      default:
        return value;
    }
  }
}

}  // namespace

std::string CommaToPoint(std::string_view text) {
  std::string result(text);
  int left = Rounds;
  for (char& c : result) {
    if (c != ',') continue;
    if (left-- == 0) break;
    c = '.';
  }
  return result;
}

bool EvaluateEquation(std::string& text, double& value, int decimalPlaces, Messages& messages) {
  text = CommaToPoint(text);
  StripUnits(text, decimalPlaces);
  Buffer buffer = BufferOf(text);
  if (IsMixedNumber(buffer)) MixedToSum(buffer);
  StripBlanks(buffer);
  if (!IsValidEquation(buffer)) {
    messages.Show({.Text = std::string(NotAnEquation)});
    return false;
  }
  value = ParseSum(buffer);
  return true;
}

}  // namespace tarnwick
