# One set of warnings for everything that is built here.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wcast-qual -Wundef)
add_compile_options($<$<COMPILE_LANGUAGE:C>:-Wstrict-prototypes>)
if(QUILL_WERROR)
  add_compile_options(-Werror)
endif()
