# What keeps a fault from becoming a way into the program: stack protector, checked calls of the C library, control flow
# that the processor guards, addresses that nobody knows, and tables that are read-only once the program is loaded.
# Holds for the folder that includes it and those below; a build to debug or to sanitize goes without the compiler's part.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)
include(CheckPIESupported)

if(TARNWICK_SANITIZE OR MSVC)
  return()
endif()

check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(hardening)
foreach(flag -fstack-protector-strong -fcf-protection=full)
  string(MAKE_C_IDENTIFIER "TARNWICK_HAS${flag}" has)
  check_cxx_compiler_flag(${flag} ${has})
  if(${has})
    list(APPEND hardening ${flag})
  endif()
endforeach()
# The checked calls need an optimised build, which "None" is by a distribution's own flags, or else by ours. Those flags
# may name a level of their own: it is taken back first, as compilers warn of a second one.
if(NOT CMAKE_CXX_FLAGS MATCHES "-O[1-9sz]")
  list(APPEND hardening $<$<CONFIG:None>:-O2>)
endif()
list(APPEND hardening -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
add_compile_options("$<$<NOT:$<CONFIG:Debug>>:${hardening}>")

foreach(keyword relro now)
  check_linker_flag(CXX -Wl,-z,${keyword} TARNWICK_LINKS_${keyword})
  if(TARNWICK_LINKS_${keyword})
    add_link_options(-Wl,-z,${keyword})
  endif()
endforeach()
