# Compiler flags, as two interface targets: keli_warnings for all code of the project, keli_exact for
# code whose results are promised.

add_library(keli_warnings INTERFACE)
target_compile_options(keli_warnings INTERFACE -Wall -Wextra -Wshadow -Werror)

# No product is fused into a sum unless the source says so, and errno is not set: without the first no
# promise on floating results would hold. HWY_BROKEN_EMU128 makes the fallback target the same under
# every compiler.
add_library(keli_exact INTERFACE)
target_compile_options(keli_exact INTERFACE -ffp-contract=off -fno-math-errno)
# Kernels are vectors by hand; the compiler's own would only blow up what handles a row's last samples.
target_compile_options(keli_exact INTERFACE -fno-tree-vectorize)
target_compile_definitions(keli_exact INTERFACE HWY_BROKEN_EMU128=1)
if(KELI_AVX2_ONLY)
  target_compile_definitions(keli_exact INTERFACE KELI_AVX2_ONLY)
endif()

if(KELI_SANITIZE)
  add_compile_options(-fsanitize=${KELI_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KELI_SANITIZE})
endif()
