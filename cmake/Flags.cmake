# What every target is compiled with: its warnings, and the rules of its arithmetic.

add_library(quillet_flags INTERFACE)
target_compile_options(quillet_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wfloat-conversion -Wshadow
  -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wnull-dereference -Wimplicit-fallthrough
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # GCC 12 is wrong about std::string here (its bug 105651)
  $<$<BOOL:${WIN32}>:-Wno-null-dereference>  # found in that compiler's own <streambuf>
  $<$<BOOL:${QUILLET_WERROR}>:-Werror>
  # The order and the rounding of every sum are behaviour: no contraction, no fast-math.
  -ffp-contract=off -fno-fast-math)

# Programs for use are hardened as Debian's own are; that they are position-independent is the
# compiler's default there. scripts/check-hardening.sh looks whether it all came about.
if(NOT WIN32)
  target_compile_options(quillet_flags INTERFACE
    "$<$<CONFIG:Release>:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  target_link_options(quillet_flags INTERFACE "$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
endif()
