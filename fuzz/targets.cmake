# The fuzz targets: fuzz/fuzz_<name>.cpp with its seed corpus in fuzz/corpus/<name>.
set(TESSARONDEL_FUZZ_TARGETS evaluate_text literal_passes cfd_document json_lines base_conversion settings_start)
