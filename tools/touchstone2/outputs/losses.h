/// What of an input does not get into an output, told on standard error.
#ifndef TOUCHSTONE2_TOOL_LOSSES_H
#define TOUCHSTONE2_TOOL_LOSSES_H

#include <touchstone2/copier/file_copier.h>
#include <touchstone2/model/file.h>

#include "inputs/source_file.h"

namespace tool {

/// What no writer writes: an information section, every comment that is not a leading one, port
/// names that contradict each other. Comments that the writers make anew are not counted.
void note_unwritten(const SourceFile& source);

/// What a choice or a new order of ports does to mixed-mode descriptors and to noise data.
void note_changes_by_ports(const touchstone2::FileCopier& copier, const touchstone2::File& source);

}  // namespace tool

#endif
