# Provides GTest::gtest_main: the installed library, or one built from GoogleTest's sources with the
# flags of this build, which other word sizes and sanitizers need.
option(KELI_GTEST_FROM_SOURCE "Build GoogleTest from its sources with the flags of this build" OFF)

if(KELI_GTEST_FROM_SOURCE)
  find_path(KELI_GTEST_SOURCE_DIR googletest/CMakeLists.txt PATHS /usr/src/googletest
            NO_DEFAULT_PATH REQUIRED DOC "Folder of GoogleTest's sources")
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  add_subdirectory(${KELI_GTEST_SOURCE_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  if(NOT TARGET GTest::gtest_main)
    add_library(GTest::gtest_main ALIAS gtest_main)
  endif()
else()
  find_package(GTest REQUIRED)
endif()
