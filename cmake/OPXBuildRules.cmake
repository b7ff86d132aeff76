# How every target of this project is compiled, and the two ways a library is put together.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

# Precompiled headers are kept by ccache only when it is told that their time and their definitions do not matter, and
# when clang writes no time into them.
find_program(OPX_CCACHE ccache)
if(OPX_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros;${OPX_CCACHE}")
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-fpch-preprocess)
endif()

include(GenerateExportHeader)

# The operating system's own folder beside the sources that every platform shares.
if(WIN32)
  set(OPX_PLATFORM_FOLDER win32)
else()
  set(OPX_PLATFORM_FOLDER posix)
endif()

add_library(opx_warnings INTERFACE)
target_compile_options(opx_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(OPX_WARNINGS_AS_ERRORS)
  target_compile_options(opx_warnings INTERFACE -Werror)
endif()

# opx_module_sources(<variable> <folder>...): every source of the folders, this platform's own included.
# A folder is a module: a file put there is part of it, with nothing else to edit.
function(opx_module_sources variable)
  set(sources)
  foreach(folder IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/${OPX_PLATFORM_FOLDER}/*.cpp")
    list(APPEND sources ${found})
  endforeach()
  set(${variable} ${sources} PARENT_SCOPE)
endfunction()

# opx_shared_library(<name> <header folder>): the export header <name>Export.h, the include folders, the alias.
function(opx_shared_library name headers)
  set(generated "${CMAKE_BINARY_DIR}/generated/${name}")
  string(TOUPPER "${name}_EXPORT" macro)
  generate_export_header(${name} EXPORT_FILE_NAME "${generated}/${name}Export.h" EXPORT_MACRO_NAME ${macro})
  target_include_directories(${name} PUBLIC
    "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/${headers}>"
    "$<BUILD_INTERFACE:${generated}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/OPXCoreTools>")
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(WIN32)
    set_target_properties(${name} PROPERTIES PREFIX "")
  else()
    # Calls within the library are direct, as they are on Windows, but for the few functions that may be replaced.
    target_compile_options(${name} PRIVATE -fno-semantic-interposition)
    target_link_options(${name} PRIVATE -Wl,-Bsymbolic-functions
      "LINKER:--dynamic-list=${PROJECT_SOURCE_DIR}/cmake/OPXReplaceable.txt")
  endif()
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:opx_warnings>)
endfunction()
