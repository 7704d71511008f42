# What every target of ours has in common: strict warnings, as errors, and the project's source folder as include root.
function(tarnwick_strict target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Werror)
  # g++ counts signedness apart from -Wconversion; clang is asked for the same set.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_CONTEXTLESS_CONNECT)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_include_directories(${target} SYSTEM PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/include)
endfunction()

# A target that holds nothing but a precompiled header, which all targets with the same options share.
function(tarnwick_precompiled name header)
  add_library(${name} OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompiled.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  tarnwick_strict(${name})
  target_link_libraries(${name} PRIVATE ${ARGN})
  target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${header})
endfunction()

# A folder of src/ is one static library, tarnwick_<folder>, of every source and form that lies in it or in its rooms.
function(tarnwick_folder folder)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h *.ui)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(tarnwick_${folder} STATIC ${sources})
  set_target_properties(tarnwick_${folder} PROPERTIES LINKER_LANGUAGE CXX)
  tarnwick_strict(tarnwick_${folder})
  target_link_libraries(tarnwick_${folder} PUBLIC ${ARGN})
  target_precompile_headers(tarnwick_${folder} REUSE_FROM tarnwick_precompiled)
endfunction()
