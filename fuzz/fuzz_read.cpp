// Reads a text whole and its header alone: no crash, nothing but diagnostics of the right form
// comes out, and the two agree about what both see.
#include <algorithm>

#include "fuzz_support.h"

namespace {

using touchstone2::File;
using touchstone2::FileVersion;
using touchstone2::fuzz::Extent;
using touchstone2::fuzz::Reading;
using touchstone2::test::Diagnostic;

void check_diagnostics(const Reading& reading, std::size_t size) {
  std::size_t errors = 0;
  for (const Diagnostic& diagnostic : reading.diagnostics) {
    if (diagnostic.severity == Diagnostic::Severity::error) ++errors;
    TOUCHSTONE2_FUZZ_CHECK(diagnostic.code > 1000 && diagnostic.code < 2400);
    TOUCHSTONE2_FUZZ_CHECK(diagnostic.code % 100 != 0);  // no headings
    TOUCHSTONE2_FUZZ_CHECK(!diagnostic.message.empty());
    TOUCHSTONE2_FUZZ_CHECK(diagnostic.token.size() <= 127);
    TOUCHSTONE2_FUZZ_CHECK((diagnostic.line == 0) == (diagnostic.column == 0));
    TOUCHSTONE2_FUZZ_CHECK(diagnostic.line <= size + 1);
    TOUCHSTONE2_FUZZ_CHECK(diagnostic.column <= size + 1);
  }
  TOUCHSTONE2_FUZZ_CHECK(errors <= 1);
  if (errors != 0) {
    TOUCHSTONE2_FUZZ_CHECK(reading.diagnostics.back().severity == Diagnostic::Severity::error);
  }
  TOUCHSTONE2_FUZZ_CHECK(reading.ok == (errors == 0));
  TOUCHSTONE2_FUZZ_CHECK(reading.ok == reading.file.is_valid());
}

// Of a file that was read without an error.
void check_counts(const Reading& whole) {
  const File& file = whole.file;
  const std::size_t ports = file.get_number_of_ports();
  const auto* const params = file.get_network_params();
  TOUCHSTONE2_FUZZ_CHECK((params == nullptr) == (ports == 0));
  TOUCHSTONE2_FUZZ_CHECK(params == nullptr || params->rows() == ports);
  TOUCHSTONE2_FUZZ_CHECK((params == nullptr ? 0 : params->freq_points()) ==
                         file.get_number_of_frequencies());
  TOUCHSTONE2_FUZZ_CHECK((whole.noise ? whole.noise->freq_points() : 0) ==
                         file.get_number_of_noise_frequencies());
  TOUCHSTONE2_FUZZ_CHECK(file.get_reference_impedance_per_port().size() == ports);
  TOUCHSTONE2_FUZZ_CHECK(file.get_mixed_mode_descriptors().size() == ports);
}

// The header's diagnostics come first in a whole read, and its error is the whole read's.
void check_agreement(const Reading& whole, const Reading& header) {
  TOUCHSTONE2_FUZZ_CHECK(header.diagnostics.size() <= whole.diagnostics.size());
  TOUCHSTONE2_FUZZ_CHECK(std::equal(header.diagnostics.begin(), header.diagnostics.end(),
                                    whole.diagnostics.begin(), touchstone2::fuzz::same));
  if (!header.ok) {
    TOUCHSTONE2_FUZZ_CHECK(!whole.ok);
    return;
  }
  TOUCHSTONE2_FUZZ_CHECK(header.file.get_network_params() == nullptr);
  TOUCHSTONE2_FUZZ_CHECK(header.noise == nullptr);
  TOUCHSTONE2_FUZZ_CHECK(header.file.get_version() == whole.file.get_version());
  TOUCHSTONE2_FUZZ_CHECK(header.file.get_frequency_multiplier() ==
                         whole.file.get_frequency_multiplier());
  TOUCHSTONE2_FUZZ_CHECK(header.file.get_parameter_type() == whole.file.get_parameter_type());
  TOUCHSTONE2_FUZZ_CHECK(header.file.get_complex_format() == whole.file.get_complex_format());
  TOUCHSTONE2_FUZZ_CHECK(header.file.get_reference_impedance() ==
                         whole.file.get_reference_impedance());
  TOUCHSTONE2_FUZZ_CHECK(header.file.get_leading_comments() == whole.file.get_leading_comments());
  if (whole.ok || whole.file.get_version() == FileVersion::V2) {
    TOUCHSTONE2_FUZZ_CHECK(header.file.get_number_of_ports() == whole.file.get_number_of_ports());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = touchstone2::fuzz::as_text(data, size);
  const Reading whole = touchstone2::fuzz::read(text);
  const Reading header = touchstone2::fuzz::read(text, Extent::header);
  check_diagnostics(whole, size);
  check_diagnostics(header, size);
  if (whole.ok) check_counts(whole);
  check_agreement(whole, header);
  TOUCHSTONE2_FUZZ_CHECK(whole.file.compare(whole.file, 3));
  return 0;
}
