#include "commands/input_reading.h"

#include <nlohmann/json.hpp>

#include "diagnostics/report.h"
#include "terminal/console.h"

namespace tool {

namespace {

void complain_about(const SourceFile& source, const Attempt& attempt) {
  if (!attempt.failure.empty()) complain(source.name() + ": " + attempt.failure);
}

}  // namespace

Outcome read_to_text(SourceFile& source, std::string& first_error) {
  PrintingHandler handler(source, write_error);
  const Attempt attempt = source.try_read(handler, Extent::whole);
  handler.finish();
  complain_about(source, attempt);
  if (first_error.empty()) first_error = handler.error_code();
  return attempt.outcome;
}

Outcome read_to_json(SourceFile& source, Json& object) {
  CollectingHandler handler;
  const Attempt attempt = source.try_read(handler, Extent::whole);
  complain_about(source, attempt);
  add_verdict(object, source.name(), attempt.outcome == Outcome::valid, handler.diagnostics(),
              attempt.failure);
  return attempt.outcome;
}

}  // namespace tool
