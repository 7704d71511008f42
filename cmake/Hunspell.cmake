# Hunspell ships no CMake package: find its header and library, and offer them as Hunspell::Hunspell.
find_path(HUNSPELL_INCLUDE_DIR hunspell/hunspell.hxx)
find_library(HUNSPELL_LIBRARY NAMES hunspell hunspell-1.7 hunspell-1.8)
if(NOT HUNSPELL_INCLUDE_DIR OR NOT HUNSPELL_LIBRARY)
  message(FATAL_ERROR "Hunspell was not found (Debian: libhunspell-dev)")
endif()
add_library(Hunspell::Hunspell UNKNOWN IMPORTED)
set_target_properties(Hunspell::Hunspell PROPERTIES
  IMPORTED_LOCATION ${HUNSPELL_LIBRARY}
  INTERFACE_INCLUDE_DIRECTORIES ${HUNSPELL_INCLUDE_DIR})
