# What every target of the project shares, and the three kinds of target that it is made of.

add_library(fotarium_flags INTERFACE)
target_compile_options(fotarium_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  # A fused multiply-add would change the last bit of the colour formulas.
  -ffp-contract=off)
if(FOTARIUM_SANITIZE)
  # Line numbers are all that a report needs; full debug information costs a third of the build. What a test program has
  # of its own is not optimised where that takes longer than it saves.
  target_compile_options(fotarium_flags INTERFACE -g1
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    $<IF:$<BOOL:$<TARGET_PROPERTY:FOTARIUM_PLAIN>>,-O0,-O1>)
  # An index beyond an array's end need not leave the memory that the sanitizers guard.
  target_compile_definitions(fotarium_flags INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(fotarium_flags INTERFACE -fsanitize=address,undefined)
endif()

# What nearly every source includes, compiled once for all that stands on Qt's widgets, and once for all test programs but
# those with compiler flags of their own, as Magick++ brings them. The plain rooms do without: GCC 12 then warns of
# copies inside std::string that are none.
# Behind a precompiled header GCC 12 takes moves inside std::string for copies that overlap or reach too far (its bugs
# 105651 and 105329); builds without one still look.
# With a compiler cache, which passes such units over, it would cost more than it saves.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES ccache)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/headers.cpp CONTENT "")
set(STANDARD_HEADERS <algorithm> <array> <filesystem> <functional> <map> <memory> <optional> <span> <string> <utility> <vector>)
function(fotarium_headers NAME)
  cmake_parse_arguments(ARG "" "" "LINK;HEADERS" ${ARGN})
  add_library(${NAME} OBJECT EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/headers.cpp)
  target_link_libraries(${NAME} PRIVATE fotarium_flags ${ARG_LINK})
  target_precompile_headers(${NAME} PRIVATE ${STANDARD_HEADERS} ${ARG_HEADERS})
endfunction()
function(fotarium_use_headers TARGET HEADERS)
  target_precompile_headers(${TARGET} REUSE_FROM ${HEADERS})
  if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(${TARGET} PRIVATE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
  endif()
endfunction()
set(WIDGET_HEADERS <QApplication> <QDialog> <QFileDialog> <QListView> <QMouseEvent> <QPainter> <QScrollBar>
  <QStyledItemDelegate> <QTreeView> <QWidget>)
fotarium_headers(fotarium_qt_headers LINK Qt6::Widgets HEADERS ${WIDGET_HEADERS})
fotarium_headers(fotarium_test_headers LINK GTest::gtest HEADERS <gtest/gtest.h> <set>)
# Qt's own header for tests goes by a definition that is another one in each folder.
fotarium_headers(fotarium_qt_test_headers LINK Qt6::Widgets GTest::gtest HEADERS ${WIDGET_HEADERS} <gtest/gtest.h> <set>)
set_target_properties(fotarium_test_headers fotarium_qt_test_headers PROPERTIES FOTARIUM_PLAIN ON)

# Rooms are named by their folder, engines/effects for one; targets by its last part, room_effects.

# fotarium_room(FOLDER [LINK libraries...] [PRIVATE libraries...]): the static library of the room src/FOLDER/. What
# is private does not reach the rooms above: neither headers nor compiler flags.
function(fotarium_room FOLDER)
  cmake_parse_arguments(ARG "" "" "LINK;PRIVATE" ${ARGN})
  get_filename_component(NAME ${FOLDER} NAME)
  file(GLOB SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.h)
  add_library(room_${NAME} STATIC ${SOURCES})
  set_target_properties(room_${NAME} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(room_${NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(room_${NAME} PRIVATE fotarium_flags ${ARG_PRIVATE} PUBLIC ${ARG_LINK})
  if("${ARG_LINK}" MATCHES "Qt6::Widgets|room_qt")
    fotarium_use_headers(room_${NAME} fotarium_qt_headers)
  endif()
endfunction()

# fotarium_test(FOLDER [SWIFT] [LINK libraries...] [FILTER tests]): one GoogleTest program of the files in tests/FOLDER/.
# With a filter, ctest runs only what passes it, one by one; the rest is for an add_test of its own. SWIFT is for tests
# that compute much by themselves: they are optimised under the sanitizers too.
function(fotarium_test FOLDER)
  cmake_parse_arguments(ARG "SWIFT" "FILTER" "LINK" ${ARGN})
  get_filename_component(NAME ${FOLDER} NAME)
  file(GLOB SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.h)
  if(NOT SOURCES)
    return()
  endif()
  add_executable(test_${NAME} ${SOURCES})
  target_include_directories(test_${NAME} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(test_${NAME} PRIVATE fotarium_flags ${ARG_LINK} GTest::gtest_main)
  if(NOT ARG_SWIFT)
    set_target_properties(test_${NAME} PROPERTIES FOTARIUM_PLAIN ON)
  endif()
  if("${ARG_LINK}" MATCHES "room_qt")
    fotarium_use_headers(test_${NAME} fotarium_qt_test_headers)
  elseif(NOT (ARG_SWIFT AND FOTARIUM_SANITIZE) AND NOT "${ARG_LINK}" MATCHES "Qt6::|MAGICK|room_strips")
    fotarium_use_headers(test_${NAME} fotarium_test_headers)
  endif()
  target_compile_definitions(test_${NAME} PRIVATE FOTARIUM_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  gtest_discover_tests(test_${NAME} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 240
    TEST_FILTER "${ARG_FILTER}" DISCOVERY_TIMEOUT 60)
endfunction()

# fotarium_bench(FOLDER [LINK libraries...]): one Google Benchmark program of the files in bench/FOLDER/.
function(fotarium_bench FOLDER)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  get_filename_component(NAME ${FOLDER} NAME)
  file(GLOB SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${FOLDER}/*.h)
  if(NOT SOURCES)
    return()
  endif()
  add_executable(bench_${NAME} ${SOURCES})
  target_include_directories(bench_${NAME} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/bench)
  target_link_libraries(bench_${NAME} PRIVATE fotarium_flags ${ARG_LINK} benchmark::benchmark_main)
endfunction()
