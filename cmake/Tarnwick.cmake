# What every target of ours has in common: strict warnings, as errors, and the project's source folder as include root.
function(tarnwick_strict target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Werror)
  # g++ counts signedness apart from -Wconversion; clang is asked for the same set.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_CONTEXTLESS_CONNECT)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_include_directories(${target} SYSTEM PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/include)
endfunction()

# A folder of src/ is one static library, tarnwick_<folder>, of every source and form that lies in it.
function(tarnwick_folder folder)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h *.ui)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(tarnwick_${folder} STATIC ${sources})
  set_target_properties(tarnwick_${folder} PROPERTIES LINKER_LANGUAGE CXX)
  tarnwick_strict(tarnwick_${folder})
  target_link_libraries(tarnwick_${folder} PUBLIC ${ARGN})
  tarnwick_pch(tarnwick_${folder})
endfunction()

function(tarnwick_pch target)
  if(TARNWICK_PCH)
    target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch.h)
  endif()
endfunction()
