# The fuzz targets: fuzz_<name>.cpp each.
set(touchstone2_fuzz_targets row_paths read round_trip comments copier)
