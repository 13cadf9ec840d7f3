// The fast path through network data against the token path: same model, same diagnostics, for
// regular files and for regular files with one thing out of order.
#include "reader/fast_records.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {

struct FastPathSwitch {
  static void turn_off(Parser& parser) { parser.uses_fast_path_ = false; }
};

namespace test {
namespace {

ReadResult read_by_tokens(std::string_view text) {
  ReadResult result{File("test.s2p"), false, {}, nullptr};
  RecordingHandler handler;
  Parser parser(result.file, handler, text);
  FastPathSwitch::turn_off(parser);
  result.ok = parser.read_file();
  result.diagnostics = handler.diagnostics;
  result.noise.reset(result.file.get_noise_params());
  return result;
}

std::vector<std::string> messages(const ReadResult& result) {
  std::vector<std::string> lines = result.brief_diagnostics();
  for (const Diagnostic& diagnostic : result.diagnostics) lines.push_back(diagnostic.message);
  return lines;
}

// False when the two differ, having said how.
bool agree(const std::string& text) {
  const ReadResult fast = read_text(text);
  const ReadResult exact = read_by_tokens(text);
  EXPECT_EQ(fast.ok, exact.ok) << text;
  EXPECT_EQ(messages(fast), messages(exact)) << text;
  EXPECT_TRUE(fast.file == exact.file) << text;
  return !::testing::Test::HasFailure();
}

struct Style {
  bool version_2;
  int ports;
  const char* format;  // DB, MA, RI
  const char* matrix;  // full, upper, lower; version 2 only
  const char* order;   // 12_21, 21_12; version 2 of two ports only
  const char* type;    // S, Y, Z, H, G
  const char* line_end;
};

int pairs_of(const Style& style) {
  const bool triangle = std::string(style.matrix) != "full";
  return triangle ? style.ports * (style.ports + 1) / 2 : style.ports * style.ports;
}

// The first three forms are those that programs write most, and never too long for the fast way.
constexpr const char* kForms[] = {"%.3f", "%.6g", "%e", "%.9g", "%.17g", "%+.4f", "%g"};
constexpr std::size_t kUsualForms = 3;

std::string number(std::mt19937_64& random, bool not_negative, std::size_t forms) {
  const double sign = not_negative || random() % 2 == 0 ? 1.0 : -1.0;
  const double value =
      sign * static_cast<double>(random() % 2'000'000'000'000) / (random() % 3 == 0 ? 1e9 : 1e12);
  char text[64];
  std::snprintf(text, sizeof text, kForms[random() % forms], value);
  return text;
}

std::string header(const Style& style, int points) {
  const std::string options = std::string("# MHz ") + style.type + " " + style.format + " R 75";
  if (!style.version_2) return options + style.line_end;
  std::string text = "[Version] 2.0\n" + options + "\n[Number of Ports] " +
                     std::to_string(style.ports) + "\n[Number of Frequencies] " +
                     std::to_string(points) + "\n[Matrix Format] " + style.matrix + "\n";
  if (style.ports == 2) text += std::string("[Two-Port Data Order] ") + style.order + "\n";
  return text + "[Network Data]" + style.line_end;
}

// One line per record up to two ports, then one line per at most four pairs.
std::string record(const Style& style, int point, std::mt19937_64& random,
                   std::size_t forms = std::size(kForms)) {
  std::string text = (!style.version_2 && random() % 4 == 0 ? " " : "") +
                     std::to_string(point + 1) + "." + std::to_string(random() % 1000);
  const bool magnitudes = std::string(style.format) == "MA";
  for (int pair = 0; pair < pairs_of(style); ++pair) {
    if (style.ports > 2 && pair > 0 && pair % 4 == 0) {
      text += std::string(random() % 2 == 0 ? " " : "") + style.line_end + "  ";
    }
    text += std::string(1 + random() % 3, random() % 5 == 0 ? '\t' : ' ');
    text += number(random, magnitudes, forms) + " " + number(random, false, forms);
  }
  return text + (random() % 4 == 0 ? " \t" : "") + style.line_end;
}

std::string file_text(const Style& style, int points, std::mt19937_64& random) {
  std::string text = header(style, points);
  for (int point = 0; point < points; ++point) text += record(style, point, random);
  return text + (style.version_2 ? "[End]\n" : "");
}

std::vector<Style> styles() {
  std::vector<Style> all;
  for (const char* line_end : {"\n", "\r\n"}) {
    for (const char* format : {"DB", "MA", "RI"}) {
      for (int ports = 1; ports <= 5; ++ports) {
        all.push_back({false, ports, format, "full", "", "S", line_end});
        all.push_back({false, ports, format, "full", "", "Z", line_end});
        all.push_back({true, ports, format, "full", "21_12", "S", line_end});
        all.push_back({true, ports, format, "upper", "12_21", "Y", line_end});
        all.push_back({true, ports, format, "lower", "12_21", "S", line_end});
      }
      all.push_back({false, 2, format, "full", "", "H", line_end});
      all.push_back({false, 2, format, "full", "", "G", line_end});
      all.push_back({true, 2, format, "full", "12_21", "S", line_end});
    }
  }
  return all;
}

TEST(FastRecords, RegularFilesGiveTheSameModel) {
  std::mt19937_64 random(4);
  for (const Style& style : styles()) {
    const std::string text = file_text(style, 12, random);
    ASSERT_TRUE(agree(text));
    ASSERT_TRUE(read_text(text).ok) << text;
  }
}

// What breaks a regular run: a byte changed, dropped or put in, a line doubled or dropped.
TEST(FastRecords, DamagedFilesGiveTheSameDiagnostics) {
  constexpr std::string_view kBytes = "0123456789+-.eE \t\r\n![]#x,\x01\xB5";
  std::mt19937_64 random(5);
  for (int repeat = 0; repeat < 60; ++repeat) {
    for (const Style& style : styles()) {
      std::string text = file_text(style, 1 + static_cast<int>(random() % 8), random);
      for (std::size_t damage = 1 + random() % 2; damage > 0; --damage) {
        const std::size_t where = random() % text.size();
        const std::string byte(1, kBytes[random() % kBytes.size()]);
        switch (random() % 5) {
          case 0:
            text.replace(where, 1, byte);
            break;
          case 1:
            text.erase(where, 1);
            break;
          case 2:
            text.insert(where, byte);
            break;
          case 3:
            text.insert(where, text, where, random() % 40);
            break;
          default:
            text.erase(where, random() % 40);
            break;
        }
      }
      if (text.empty()) continue;
      ASSERT_TRUE(agree(text));
    }
  }
}

struct Interruption {
  const char* name;
  const char* text;
};

// Whole lines between two records, and what may stand behind the numbers of a line.
TEST(FastRecords, InterruptedRunsGiveTheSameResult) {
  const Interruption interruptions[] = {
      {"blank line", "\n"},
      {"blanks", "   \n"},
      {"comment", "! remark\n"},
      {"comment with a bad byte", "! 50 \xCE\xA9\n"},
      {"indented comment with a bad byte", "   ! \xB5\n"},
      {"options line", "# GHz\n"},
      {"keyword", "[End]\n"},
      {"word", "abc\n"},
      {"lone carriage return", "\r"},
      {"noise row", "0.5 1 0.3 20 0.4\n"},
      {"noise row of a higher frequency", "500 1 0.3 20 0.4\n"},
      {"number", "7\n"},
      {"frequency and values of one port on two lines", "4.0001\n1 1\n"},
      {"two ports on two lines", "4.0001 1 1 1 1\n1 1 1 1\n"},
      {"two ports, a pair on two lines", "4.0001 1 1 1\n1 1 1 1 1\n"},
      {"two ports on two lines, like noise", "0.0001 1 1 1 1\n1 1 1 1\n"},
      {"a negative magnitude, one port", "4.0001 -1 1\n"},
      {"a negative magnitude, two ports", "4.0001 1 1 1 1 -1 1 1 1\n"},
      {"clipped numbers", "4.0001 1e999 1e-999 1 1 1 1 1 1\n"},
  };
  std::mt19937_64 random(6);
  for (const Interruption& interruption : interruptions) {
    for (const Style& style : styles()) {
      for (int position = 0; position <= 8; ++position) {
        std::string text = header(style, 8);
        for (int point = 0; point < 8; ++point) {
          if (point == position) text += interruption.text;
          text += record(style, point, random);
        }
        if (position == 8) text += interruption.text;
        if (style.version_2) text += "[End]\n";
        SCOPED_TRACE(interruption.name);
        ASSERT_TRUE(agree(text));
      }
    }
  }
}

CellCursor first_cell_of(const Style& style) {
  using Order = CellCursor::Order;
  const std::string matrix = style.matrix;
  const bool by_columns =
      style.ports == 2 && (!style.version_2 || style.order == std::string("21_12"));
  const Order order = matrix == "upper"   ? Order::upper_triangle
                      : matrix == "lower" ? Order::lower_triangle
                      : by_columns        ? Order::column_by_column
                                          : Order::row_by_row;
  return {order, static_cast<std::size_t>(style.ports)};
}

// The tests above would pass without a fast path, too: what it takes by itself. The last record
// of a version 1 file may go on, and is left.
TEST(FastRecords, TakesEveryRegularRecord) {
  constexpr int kPoints = 10;
  std::mt19937_64 random(7);
  for (const Style& style : styles()) {
    std::string text;
    std::size_t last = 0;
    for (int point = 0; point < kPoints; ++point) {
      last = text.size();
      text += record(style, point, random, kUsualForms);
    }
    const std::size_t taken = style.version_2 ? text.size() : last;
    const auto lines =
        std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(taken), '\n');
    text += "! remark\n" + std::string(200, ' ');
    SCOPED_TRACE(text);

    const ReadResult read = read_text(header(style, kPoints), Extent::header);
    const auto ports = static_cast<std::size_t>(style.ports);
    std::unique_ptr<NetworkParams> params;
    if (style.matrix == std::string("full")) {
      params = std::make_unique<FullNetworkParams>(ports, 1e6, read.file.get_complex_format());
    } else {
      params = std::make_unique<SymmetricNetworkParams>(ports, 1e6, read.file.get_complex_format());
    }
    ReadProgress progress;
    FastRecords records(read.file, *params, first_cell_of(style), {&progress, text.data()});
    const auto result = records.take(text.data(), text.data() + text.size());
    ASSERT_EQ(static_cast<std::size_t>(result.end - text.data()), taken);
    ASSERT_EQ(progress.bytes, taken);
    ASSERT_EQ(result.lines, static_cast<std::size_t>(lines));
    ASSERT_EQ(params->freq_points(),
              static_cast<std::size_t>(style.version_2 ? kPoints : kPoints - 1));
  }
}

// A comment behind the numbers of a line is scanned ahead of the next record; its warnings must
// come once.
TEST(FastRecords, WarningsOfCommentsComeOnce) {
  std::string text = "# MHz S RI\n";
  for (int point = 1; point <= 40; ++point) {
    text += std::to_string(point) + " 0.5 0.25" + (point % 3 == 0 ? " ! \xB5\n" : "\n");
    if (point % 7 == 0) text += "! \xB5 between\n";
  }
  ASSERT_TRUE(agree(text));
  EXPECT_EQ(read_text(text).diagnostics.size(), 13U + 5U);
}

TEST(FastRecords, LinesAreCountedAcrossRunsTakenFast) {
  std::string text = "# MHz S RI\n";
  for (int point = 1; point <= 100; ++point) text += std::to_string(point) + " 0.5 0.25\n";
  text += "100 0.5 0.25\n";
  EXPECT_EQ(read_text(text).brief_diagnostics(), std::vector<std::string>{"E2311 102:1 '100'"});
}

}  // namespace
}  // namespace test
}  // namespace touchstone2
