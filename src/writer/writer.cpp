// The pieces of text that both generations have in common. Every byte counts, blanks at line
// ends included.
//
// The precision is set for the values only and persists in the stream. So the frequency of the
// first point is printed with the caller's precision, and those of later points with the
// writer's. This is kept on purpose.
#include <touchstone2/writer/writer.h>

#include <ios>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "writer/plain_numbers.h"
#include "writer/text_buffer.h"

namespace touchstone2 {

namespace {

using detail::PlainNumbers;
using detail::TextBuffer;
using detail::write_number;

// Indexed by the value of the enumeration.
constexpr std::string_view kUnits[] = {"", " Hz", " kHz", " MHz", " GHz"};
constexpr std::string_view kTypes[] = {"", " S", " Y", " Z", " H", " G"};
constexpr std::string_view kTypeLetters[] = {"_", "S", "Y", "Z", "H", "G"};
constexpr std::string_view kFormats[] = {"", " DB", " MA", " RI"};
constexpr std::string_view kFirstLabels[] = {"", "dB", "mag", "re"};
constexpr std::string_view kSecondLabels[] = {"", "ang", "ang", "im"};

template <std::size_t Size, typename Enum>
std::string_view text_of(const std::string_view (&table)[Size], Enum value) {
  const auto index = static_cast<std::size_t>(value);
  return index < Size ? table[index] : std::string_view();
}

// The order in which the pairs of one matrix are printed, and the line breaks between them.
class PairOrder {
 public:
  PairOrder(const File& file, bool column_major_two_port, bool version_1_layout)
      : ports_(file.get_number_of_ports()),
        format_(file.get_matrix_format()),
        swapped_(column_major_two_port && ports_ == 2),
        breaks_(ports_ >= 3),
        version_1_layout_(version_1_layout) {}

  std::size_t rows() const { return ports_; }
  std::size_t begin(std::size_t i) const { return format_ == MatrixFormat::Upper ? i : 0; }
  std::size_t end(std::size_t i) const { return format_ == MatrixFormat::Lower ? i + 1 : ports_; }

  bool breaks_before(std::size_t i, std::size_t j) const {
    if (!breaks_) return false;
    if (version_1_layout_) return j % 4 == 0 && (i != 0 || j != 0);
    return i != 0 && j == begin(i);
  }

  // Row and column of the cell that is printed as pair (i, j).
  std::pair<std::size_t, std::size_t> cell(std::size_t i, std::size_t j) const {
    return swapped_ ? std::pair(j, i) : std::pair(i, j);
  }

 private:
  std::size_t ports_;
  MatrixFormat format_;
  bool swapped_;
  bool breaks_;
  bool version_1_layout_;
};

constexpr std::string_view kHeaderStart = "! freq              ";
constexpr std::string_view kHeaderBreak = "\n!                   ";
constexpr std::string_view kDataBreak = "\n                    ";

void write_column_names(TextBuffer& text, const File& file, const PairOrder& order) {
  const std::string_view letter = text_of(kTypeLetters, file.get_parameter_type());
  const std::string_view first = text_of(kFirstLabels, file.get_complex_format());
  const std::string_view second = text_of(kSecondLabels, file.get_complex_format());
  text.append(kHeaderStart);
  for (std::size_t i = 0; i < order.rows(); ++i) {
    for (std::size_t j = order.begin(i); j < order.end(i); ++j) {
      if (order.breaks_before(i, j)) text.append(kHeaderBreak);
      const auto [row, col] = order.cell(i, j);
      const std::string name =
          std::string(letter) + std::to_string(row + 1) + std::to_string(col + 1);
      text.append("  ");
      text.append_field(name + std::string(first));
      text.append(" ");
      text.append_field(name + std::string(second));
    }
  }
  text.append("\n");
}

}  // namespace

Writer::Writer(File& file) : file_(file) {
  if (!file.is_valid()) throw std::logic_error("touchstone2::File is not valid");
}

Writer::Writer(const Writer& other) = default;
Writer::~Writer() = default;

int Writer::precision() const { return precision_; }

void Writer::setPrecision(int digits) { precision_ = digits; }

void Writer::write_leading_comments(std::ostream& os) const {
  file_.update_leading_comments();
  const std::vector<std::string> comments = file_.get_leading_comments();
  if (comments.empty()) os << "! Touchstone data file\n";
  for (const std::string& line : comments) os << "!" << line << "\n";
}

void Writer::write_options_line(std::ostream& os) const {
  const PlainNumbers plain(os);
  os << "#" << text_of(kUnits, file_.get_frequency_scale_factor())
     << text_of(kTypes, file_.get_parameter_type())
     << text_of(kFormats, file_.get_complex_format());
  if (file_.get_reference_impedance() > 0.0) {
    os << " R ";
    write_number(os, file_.get_reference_impedance());
  }
  os << "\n";
}

void Writer::write_network_params(std::ostream& os, bool write_header, bool column_major_two_port,
                                  bool version_1_layout) const {
  const NetworkParams* const params = file_.get_network_params();
  if (params == nullptr || params->freq_points() == 0) return;
  const PlainNumbers plain(os);
  const PairOrder order(file_, column_major_two_port, version_1_layout);
  const ComplexFormat format = file_.get_complex_format();

  TextBuffer text(os);
  os.setf(std::ios_base::left, std::ios_base::adjustfield);
  if (write_header) write_column_names(text, file_, order);
  for (std::size_t k = 0; k < params->freq_points(); ++k) {
    text.append_field(params->get_unscaled_freq(k), os.precision());
    for (std::size_t i = 0; i < order.rows(); ++i) {
      for (std::size_t j = order.begin(i); j < order.end(i); ++j) {
        if (order.breaks_before(i, j)) text.append(kDataBreak);
        const auto [row, col] = order.cell(i, j);
        auto [a, b] = params->cell(k, row, col).as_format(format);
        normalize_network_data(a, b, i, j);
        os.precision(precision_);
        text.append_pair(a, b, precision_);
      }
    }
    text.append("\n");
  }
  text.flush();
}

void Writer::write_noise_params(std::ostream& os, bool normalize) const {
  const NoiseParams* const noise = file_.get_noise_params();
  if (noise == nullptr || noise->freq_points() == 0) return;
  const PlainNumbers plain(os);
  TextBuffer text(os);
  os.setf(std::ios_base::left, std::ios_base::adjustfield);
  os.precision(precision_);
  for (std::size_t k = 0; k < noise->freq_points(); ++k) {
    const double ohms = noise->get_impedance(k);
    text.append_field(noise->get_unscaled_freq(k), precision_);
    for (const double value : {noise->get_min_noise_db(k), noise->get_reflection_magnitude(k),
                               noise->get_reflection_phase(k),
                               normalize ? ohms / file_.get_reference_impedance() : ohms}) {
      text.append("  ");
      text.append_number(value, precision_);
    }
    text.append("\n");
    text.flush();
    os.flush();  // after every row
  }
}

}  // namespace touchstone2
