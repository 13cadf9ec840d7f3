/// touchstone2: reads, validates, holds, transforms and writes Touchstone files (.sNp, .ts).
///
/// Where to look:
///
///     model/   what a file holds: File, NetworkParams, NoiseParams and the small value types
///     reader/  Parser reads a file or bytes in memory into a File and tells a MessageHandler
///              every error and warning, each with code, line and column
///     writer/  V1_Writer and V2_Writer write a valid File to a stream
///     portnames/  the comment conventions that name ports; File's members use them
///     copier/  a new File with a subset or a new order of the ports
///
/// S21 of the first point of a file:
///
///     #include <touchstone2/touchstone2.h>
///
///     touchstone2::File file("filter.s2p");
///     touchstone2::StandardMessageHandler handler;
///     touchstone2::Parser parser(file, handler);
///     if (parser.read_file()) {
///       const touchstone2::NetworkParams& s = *file.get_network_params();
///       auto [db, deg] = s.cell(0, 1, 0).as_format(touchstone2::ComplexFormat::DB);   // S21
///     }
///
/// Indices count from 0; port numbers in descriptors and diagnostics, lines and columns count
/// from 1. Impedances are in ohms, angles in degrees, frequencies in the file's unit unless a
/// name or comment says Hz.
#ifndef TOUCHSTONE2_TOUCHSTONE2_H
#define TOUCHSTONE2_TOUCHSTONE2_H

#include <touchstone2/copier/file_copier.h>
#include <touchstone2/export.h>
#include <touchstone2/model/file.h>
#include <touchstone2/model/network_params.h>
#include <touchstone2/model/noise_params.h>
#include <touchstone2/model/types.h>
#include <touchstone2/portnames/comment_processor.h>
#include <touchstone2/portnames/port_name_parsers.h>
#include <touchstone2/portnames/string_tokenizer.h>
#include <touchstone2/reader/diagnostics.h>
#include <touchstone2/reader/error_type.h>
#include <touchstone2/reader/message_handler.h>
#include <touchstone2/reader/parser.h>
#include <touchstone2/reader/port_count.h>
#include <touchstone2/reader/read_progress.h>
#include <touchstone2/reader/token.h>
#include <touchstone2/version.h>
#include <touchstone2/writer/v1_writer.h>
#include <touchstone2/writer/v2_writer.h>
#include <touchstone2/writer/writer.h>

#endif
