# What is not written here: found on the machine, never copied in.

find_package(Threads REQUIRED)

if(CMAKE_CROSSCOMPILING)
  # Header-only libraries are the same for every platform. The folder that holds the build machine's headers also
  # holds its C library's, so only the folders that are wanted are shown to the cross compiler.
  set(OPX_HEADER_ONLY "${CMAKE_BINARY_DIR}/header-only")
  foreach(folder nlohmann CLI)
    if(EXISTS "/usr/include/${folder}")
      file(MAKE_DIRECTORY "${OPX_HEADER_ONLY}")
      file(CREATE_LINK "/usr/include/${folder}" "${OPX_HEADER_ONLY}/${folder}" SYMBOLIC)
    endif()
  endforeach()
  foreach(package nlohmann_json CLI11)
    set(target ${package}::${package})
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} SYSTEM INTERFACE "${OPX_HEADER_ONLY}")
  endforeach()
else()
  find_package(nlohmann_json 3.10 REQUIRED)
  find_package(CLI11 REQUIRED)
  find_package(Boost 1.81 REQUIRED COMPONENTS stacktrace_backtrace)
endif()
