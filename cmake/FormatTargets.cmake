# `format` rewrites every C++ file of the project in its style; `format-check` fails on a difference.
add_custom_target(format COMMAND "${PROJECT_SOURCE_DIR}/scripts/format")
add_custom_target(format-check COMMAND "${PROJECT_SOURCE_DIR}/scripts/format" --check)
