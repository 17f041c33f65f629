# Emscripten's own toolchain, wherever it lies beside its compiler.
find_program(emscripten_compiler em++)
if(NOT emscripten_compiler)
  message(FATAL_ERROR "The page needs Emscripten and what it runs: apt-get install --no-install-recommends emscripten "
    "node-acorn python3-fonttools python3-brotli fonts-liberation fonts-roboto-unhinted (script/web installs them)")
endif()
get_filename_component(emscripten_compiler ${emscripten_compiler} REALPATH)
get_filename_component(emscripten ${emscripten_compiler} DIRECTORY)
include(${emscripten}/cmake/Modules/Platform/Emscripten.cmake)
