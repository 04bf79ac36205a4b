# A CMake toolchain file that builds a whole project for i386 Linux against Lorb++:
#   cmake -DCMAKE_TOOLCHAIN_FILE=<prefix>/share/lorb++/toolchain.cmake <source>
# C++ is compiled and linked by the lorb++ driver, which adds the library's flags to every
# command; C is compiled with gcc -m32, so mixed projects link.
get_filename_component(_lorb_prefix "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
set(CMAKE_CXX_COMPILER "${_lorb_prefix}/bin/lorb++")
set(CMAKE_C_COMPILER gcc)
set(CMAKE_C_FLAGS_INIT "-m32")
set(CMAKE_ASM_FLAGS_INIT "-m32")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-m32")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-m32")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-m32")
unset(_lorb_prefix)
