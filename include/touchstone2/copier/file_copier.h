/// A new File from chosen ports of an existing one.
///
///     // Ports 4 and 1 of a 4-port file as the ports 1 and 2 of a new one.
///     source.get_port_names();   // look the names up first, see copyFileWithSubsetOfPorts
///     std::unique_ptr<touchstone2::File> pair(
///         touchstone2::copyFileWithSubsetOfPorts("pair.s2p", source, {{3, "out"}, {0, "in"}}));
///     if (pair) touchstone2::V2_Writer(*pair).write_file(stream);
///
/// What belongs to a port follows it: rows and columns of the matrices, its reference
/// impedance, its mixed-mode descriptors, its name. Everything else is copied as it stands.
///
/// Ownership. The new File belongs to the caller. It has network data of its own; nothing is
/// shared with the source. If it has noise data (both files have two ports), these are a new
/// object too and belong, as with a File that was read, to nobody inside the library:
///
///     std::unique_ptr<const touchstone2::NoiseParams> noise(copy->get_noise_params());
///
/// Both kinds of index occur: port selections and matrices count ports from 0, mixed-mode
/// descriptors from 1.
#ifndef TOUCHSTONE2_COPIER_FILE_COPIER_H
#define TOUCHSTONE2_COPIER_FILE_COPIER_H

#include <touchstone2/export.h>
#include <touchstone2/model/file.h>
#include <touchstone2/model/types.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace touchstone2 {

/// Does its work in the constructor; takeResult hands the new File over. The functions
/// below are the usual way to it, and check their arguments more gently.
///
/// The source and the selection are referred to and must outlive the copier.
class FileCopier {
 public:
  /// @param new_file_name  name of the new File; nothing is opened
  /// @param source         file to copy from; the copy is valid only if the source is
  /// @param ports          entry d describes port d of the new File: the source port that it
  ///                       takes its data from, counted from 0, and its name. A source port
  ///                       may be taken more than once; descriptors then follow the last
  ///                       taker. The names count only if the source has names stored.
  /// @throws ParserError  for G- or H-parameters unless both files have two ports
  /// @throws std::out_of_range  "ports" when the selection names a port that the source does
  ///         not have; "freqIndex", "row" or "col" when the source's data have fewer ports
  ///         than the source says
  TOUCHSTONE2_EXPORT FileCopier(const std::string& new_file_name, const File& source,
                                const std::vector<std::pair<std::size_t, std::string>>& ports);

  FileCopier(const FileCopier&) = delete;
  FileCopier& operator=(const FileCopier&) = delete;

  /// Deletes the new File, and its noise data with it, unless takeResult was called.
  TOUCHSTONE2_EXPORT ~FileCopier();

  /// The new File. It and its noise data belong to the caller from now on; a second call
  /// gives null.
  ///
  ///     std::unique_ptr<touchstone2::File> file(copier.takeResult());
  TOUCHSTONE2_EXPORT File* takeResult();

  /// Makes the new File list every cell: what a triangle leaves out is filled from the mirrored
  /// cell, bit for bit, and the matrix format becomes `Full`. Only before takeResult.
  TOUCHSTONE2_EXPORT void expandMatrix();

  TOUCHSTONE2_EXPORT std::size_t numSourcePorts() const;  ///< ports of the source
  TOUCHSTONE2_EXPORT std::size_t numDestPorts() const;    ///< ports of the new File

  /// The source port that port `d` of the new File takes its data from; both from 0.
  /// @throws std::out_of_range  "ports" when the new File has no such port.
  TOUCHSTONE2_EXPORT std::size_t destIndexToSourceIndex(std::size_t d) const;

  /// The port of the new File that takes source port `s`, both from 0; numDestPorts() when
  /// none does, or when there is no such source port.
  TOUCHSTONE2_EXPORT std::size_t sourceIndexToDestIndex(std::size_t s) const;

  /// True when some port of the new File takes source port `s`, counted from 0.
  TOUCHSTONE2_EXPORT bool sourceIndexIsMapped(std::size_t s) const;

  /// Name of port `d` of the new File, as the selection gives it.
  /// @throws std::out_of_range  "ports" when the new File has no such port.
  TOUCHSTONE2_EXPORT const std::string& destPortName(std::size_t d) const;

  /// Whether a descriptor of the source has a counterpart in the new File: always when all
  /// its ports are taken, never when none is; a pair with one port taken is kept as its
  /// differential descriptor and lost as its common-mode one.
  TOUCHSTONE2_EXPORT bool mixedModeDescriptorIsNeeded(const MixedModeDescriptor& desc) const;

  /// The counterpart of a descriptor that is needed. A pair that has lost one port becomes
  /// `SingleEnded` for the port that stays.
  TOUCHSTONE2_EXPORT MixedModeDescriptor
  copyMixedModeDescriptor(const MixedModeDescriptor& desc) const;

 private:
  void initializeSourceToDestPortMap();
  void copySourceToDestination();
  void copyParameterType();
  void copyTwoPortDataOrder();
  void copyMixedModeDescriptors();
  void copyReferenceImpedancePerPort();
  void copyNetworkParams();
  void copyNoiseParams();
  void copyPortNames();

  const File& source_;
  const std::vector<std::pair<std::size_t, std::string>>& ports_;
  std::vector<std::size_t> sourceToDest_;  // one entry per source port
  std::unique_ptr<File> result_;           // null once it was taken
  std::unique_ptr<NoiseParams> noise_;     // of the new File, until it is taken
};

/// All ports of `source` in a new order, with their names.
///
/// @param new_file_name  name of the new File; nothing is opened
/// @param source         file to copy from; it may be destroyed afterwards
/// @param order          entry i is the source port, from 0, that becomes port i. Repeated
///                       entries are accepted.
/// @return a new File that the caller owns:
///
///     std::unique_ptr<touchstone2::File> copy(
///         touchstone2::copyFileWithReorderedPorts("new.s2p", source, {1, 0}));
///
///         Null when the source is not valid, when `order` does not have one entry per port
///         of the source or names a port that it does not have, and when order is empty. An
///         empty name stands for every port whose name the source does not have.
/// @throws std::out_of_range  "freqIndex", "row" or "col" when the source's data have fewer
///         ports than the source says.
TOUCHSTONE2_EXPORT File* copyFileWithReorderedPorts(const std::string& new_file_name,
                                                    const File& source,
                                                    const std::vector<std::size_t>& order);

/// Chosen ports of `source`, newly named.
///
/// The names count only if port names are stored in the source: call its get_port_names (or
/// set_port_names) first. Otherwise the names given here are ignored, and the copy's comments
/// are those of the source, unchanged.
///
/// @param new_file_name  name of the new File; nothing is opened
/// @param source         file to copy from; it may be destroyed afterwards
/// @param ports          entry d describes port d of the new File: the source port, from 0,
///                       and the new name. May be empty.
/// @return a new File that the caller owns:
///
///     std::unique_ptr<touchstone2::File> copy(
///         touchstone2::copyFileWithSubsetOfPorts("new.s1p", source, {{0, "in"}}));
///
///         Null when the source is not valid, when there are more entries than the source
///         has ports, when one names a port that the source does not have, and when G- or
///         H-parameters would lose one of their two ports.
/// @throws std::out_of_range  "freqIndex", "row" or "col" when the source's data have fewer
///         ports than the source says.
TOUCHSTONE2_EXPORT File* copyFileWithSubsetOfPorts(
    const std::string& new_file_name, const File& source,
    const std::vector<std::pair<std::size_t, std::string>>& ports);

/// All ports of `source` in their order, with every cell of the matrices listed: what an upper
/// or lower triangle leaves out is filled from the mirrored cell, bit for bit, and the matrix
/// format becomes `Full`. A full matrix is copied as it stands. Port names are looked up in the
/// source and kept.
///
/// Version 1 has no triangles, so this is what V1_Writer needs for a file that has one.
///
/// @param new_file_name  name of the new File; nothing is opened
/// @param source         file to copy from; it may be destroyed afterwards
/// @return a new File that the caller owns:
///
///     std::unique_ptr<touchstone2::File> full(
///         touchstone2::copyFileWithFullMatrix("full.s4p", source));
///
///         Null when the source is not valid, and for G- or H-parameters without two ports.
/// @throws std::out_of_range  "freqIndex", "row" or "col" when the source's data have fewer
///         ports than the source says.
TOUCHSTONE2_EXPORT File* copyFileWithFullMatrix(const std::string& new_file_name,
                                                const File& source);

}  // namespace touchstone2

#endif
