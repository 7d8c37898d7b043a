# What every target of the house is compiled with.

if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(CCACHE_PROGRAM ccache)
  if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
  endif()
endif()

# Headers of libraries are read once for a target instead of once for each of its files. Not with ccache, which cannot
# work with that, and saves more where the same tree is built again and again.
if(CMAKE_CXX_COMPILER_LAUNCHER AND NOT DEFINED CMAKE_DISABLE_PRECOMPILE_HEADERS)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
set(standard_headers <algorithm> <array> <charconv> <cmath> <cstddef> <cstdint> <filesystem> <fstream> <functional>
  <limits> <map> <memory> <optional> <span> <string> <string_view> <utility> <variant> <vector>)
set(window_headers <QAction> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QDir> <QFile> <QGridLayout> <QGroupBox>
  <QHBoxLayout> <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QMainWindow> <QMenu> <QMessageBox> <QMouseEvent> <QPainter>
  <QPushButton> <QRadioButton> <QScreen> <QScrollBar> <QShortcut> <QString> <QStyle> <QTimer> <QToolButton>
  <QVBoxLayout> <QWheelEvent> <QWindow>)

# Coordinates must agree to the last digit between compilers and machines, so a product and a sum
# are never contracted into one rounding.
if(NOT MSVC)
  add_compile_options(-ffp-contract=off)
endif()

if(TARNWICK_SANITIZE)
  add_compile_options(-fsanitize=${TARNWICK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TARNWICK_SANITIZE})
endif()

add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE
  "$<IF:$<CXX_COMPILER_ID:MSVC>,/W4;/permissive-,-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion>")
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  # Of code out of such headers the compiler forgets that it is the library's, and warns of what it inlines from there.
  target_compile_options(project_warnings INTERFACE
    -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
endif()
