# QScintilla ships no CMake package: find its header and library, and offer them as QScintilla::QScintilla.
find_path(QSCINTILLA_INCLUDE_DIR Qsci/qsciscintillabase.h
  HINTS ${Qt6Core_INCLUDE_DIRS} PATH_SUFFIXES qt6 x86_64-linux-gnu/qt6 aarch64-linux-gnu/qt6)
find_library(QSCINTILLA_LIBRARY NAMES qscintilla2_qt6)
if(NOT QSCINTILLA_INCLUDE_DIR OR NOT QSCINTILLA_LIBRARY)
  message(FATAL_ERROR "QScintilla for Qt 6 was not found (Debian: libqscintilla2-qt6-dev)")
endif()
add_library(QScintilla::QScintilla UNKNOWN IMPORTED)
set_target_properties(QScintilla::QScintilla PROPERTIES
  IMPORTED_LOCATION ${QSCINTILLA_LIBRARY}
  INTERFACE_INCLUDE_DIRECTORIES ${QSCINTILLA_INCLUDE_DIR}
  INTERFACE_LINK_LIBRARIES "Qt6::Widgets;Qt6::PrintSupport")
