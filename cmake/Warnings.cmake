# Warnings for our own targets only; third-party headers come in as SYSTEM.
function(tessarondel_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
  # GCC 12 at -O3 takes the standard library's string copies, inlined, for
  # overlapping ones and the destruction of a std::variant for a read of an
  # uninitialised member; GCC 13 no longer does. Keep both warnings elsewhere.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-Wno-restrict -Wno-maybe-uninitialized>)
  endif()
endfunction()

# One static library per folder: every .cpp of the folder, headers included by folder name.
function(tessarondel_library target)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  tessarondel_warnings(${target})
endfunction()

# One test executable per folder of tests/, linking the library under test.
function(tessarondel_test_folder target)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${target} ${sources})
  target_link_libraries(${target} PRIVATE ${ARGN} GTest::gtest GTest::gmock GTest::gtest_main)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${target} PRIVATE
    TESSARONDEL_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data"
    TESSARONDEL_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  tessarondel_warnings(${target})
  # Rows carry their names in the test names; their bytes would only clutter them.
  gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES)
endfunction()
