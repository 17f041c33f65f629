# Emscripten's own toolchain, wherever it lies beside its compiler.
find_program(emscripten_compiler em++)
if(emscripten_compiler)
  get_filename_component(emscripten_compiler ${emscripten_compiler} REALPATH)
  get_filename_component(emscripten ${emscripten_compiler} DIRECTORY)
  include(${emscripten}/cmake/Modules/Platform/Emscripten.cmake)
endif()
