if(BROOKLANDER_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(BROOKLANDER_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
