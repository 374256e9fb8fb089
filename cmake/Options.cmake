# What every target of ours is compiled with.
add_library(quillmere_options INTERFACE)
target_compile_options(quillmere_options INTERFACE -Wall -Wextra -Wconversion -Werror)
target_compile_definitions(quillmere_options INTERFACE
  QT_NO_KEYWORDS               # GLib headers use "signals" as a name
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
  QT_NO_FOREACH QT_USE_QSTRINGBUILDER
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_link_options(quillmere_options INTERFACE
  -Wl,--gc-sections -Wl,-O1 -Wl,--as-needed -Wl,-z,pack-relative-relocs)
if(QUILLMERE_FUZZ)
  set(QUILLMERE_SANITIZE ON)
  target_compile_options(quillmere_options INTERFACE -fsanitize=fuzzer-no-link
    -Wno-sign-conversion) # which g++ leaves out of -Wconversion
endif()
if(QUILLMERE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_compile_options(quillmere_options INTERFACE ${sanitizers})
  target_link_options(quillmere_options INTERFACE ${sanitizers})
endif()

# What the program itself is compiled with: it waits most of the day, and what counts of its code is
# the memory, not the cycles.
add_library(quillmere_compact INTERFACE)
if(NOT QUILLMERE_SANITIZE)
  target_compile_options(quillmere_compact INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-Os> -ffunction-sections -fdata-sections -fvisibility=hidden -fvisibility-inlines-hidden)
endif()
