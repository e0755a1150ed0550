# How all targets of the project are built. Nothing here reaches the users of the installed libraries.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

# Warnings, include paths and sanitizers of our own sources.
add_library(vorq_build INTERFACE)
target_include_directories(vorq_build INTERFACE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_compile_options(
  vorq_build
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Werror
            $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>)
if(VORQ_SANITIZE)
  target_compile_options(vorq_build INTERFACE -fsanitize=${VORQ_SANITIZE} -fno-sanitize-recover=all
                                              -fno-omit-frame-pointer)
  target_link_options(vorq_build INTERFACE -fsanitize=${VORQ_SANITIZE})
endif()

# vorq_shared_library(NAME EXPORTS): libNAME.so from the objects of NAME_objects, with exactly the symbols that the
# version script EXPORTS lists, and hidden visibility for the rest.
function(vorq_shared_library name exports)
  add_library(${name} SHARED)
  target_link_libraries(${name} PRIVATE ${name}_objects)
  target_link_options(${name} PRIVATE -Wl,--version-script=${exports} -Wl,--no-undefined)
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                           LINK_DEPENDS ${exports} LINKER_LANGUAGE CXX
                                           INSTALL_RPATH "$ORIGIN")
  add_library(vorq::${name} ALIAS ${name})
endfunction()

# vorq_object_library(NAME): where the folders of a library gather their sources.
function(vorq_object_library name)
  add_library(${name} OBJECT)
  target_link_libraries(${name} PRIVATE vorq_build)
  set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden C_VISIBILITY_PRESET hidden
                                           VISIBILITY_INLINES_HIDDEN ON LINKER_LANGUAGE CXX)
endfunction()
