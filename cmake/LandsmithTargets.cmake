# How targets are made here. One folder under src/ is one target; a folder sees another folder's
# headers only when it links it, because each target publishes an include root of its own.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# g++ 12 sees overlapping copies in std::string's operator+ at -O3 where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)
endif()

# Results must be the same on every machine: no fused multiply-add.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Werror -ffp-contract=off)
# g++ 12 warns of overlapping copies inside its own operator+(const char*, std::string&&) when it optimises.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13
   AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  add_compile_options(-Wno-restrict)
endif()

# Publishes `folder` (its last component is the name used in #include) for targets that link `name`.
function(landsmith_publish name folder)
  get_filename_component(leaf ${folder} NAME)
  set(root ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${folder} ${root}/${leaf} SYMBOLIC)
  file(GLOB headers RELATIVE ${folder} CONFIGURE_DEPENDS ${folder}/*.h)
  list(TRANSFORM headers PREPEND ${root}/${leaf}/)
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${root} FILES ${headers})
  set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()

# Stops the configure run when a file of the current folder includes a folder that is not in `allowed`: links are
# transitive, the table of who may include whom is not.
function(landsmith_check_includes allowed)
  file(GLOB files CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  get_filename_component(own ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  foreach(file IN LISTS files)
    file(STRINGS ${file} lines REGEX "^#include \"[a-z]+/")
    foreach(line IN LISTS lines)
      string(REGEX REPLACE "^#include \"([a-z]+)/.*" "\\1" folder "${line}")
      if(NOT folder STREQUAL own AND NOT folder IN_LIST allowed)
        message(FATAL_ERROR "${file} may not include ${folder}/")
      endif()
    endforeach()
  endforeach()
endfunction()

# landsmith_library(name LINK ... MAY_INCLUDE ...): every .cpp of the current folder, as one static library.
function(landsmith_library name)
  cmake_parse_arguments(arg "" "" "LINK;MAY_INCLUDE" ${ARGN})
  landsmith_check_includes("${arg_MAY_INCLUDE}")
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${name} PUBLIC ${arg_LINK})
  landsmith_publish(${name} ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# Stops the configure run when Qt is anywhere in the link closure of `name`.
function(landsmith_forbid_qt name)
  set(queue ${name})
  set(path_${name} ${name})
  set(seen "")
  while(queue)
    list(POP_FRONT queue target)
    if(target IN_LIST seen)
      continue()
    endif()
    list(APPEND seen ${target})
    set(links "")
    foreach(property LINK_LIBRARIES INTERFACE_LINK_LIBRARIES)
      get_target_property(values ${target} ${property})
      if(values)
        list(APPEND links ${values})
      endif()
    endforeach()
    foreach(link IN LISTS links)
      if(link MATCHES "Qt[0-9]*::")
        message(FATAL_ERROR "Qt may not be reached from ${name}: ${path_${target}} -> ${link}")
      endif()
      if(TARGET ${link})
        set(path_${link} "${path_${target}} -> ${link}")
        list(APPEND queue ${link})
      endif()
    endforeach()
  endwhile()
endfunction()

# landsmith_test(name LINK ...): every .cpp of the current folder, as one GoogleTest program whose
# cases ctest knows one by one. ARGN may hold QT for programs that run on the offscreen platform.
function(landsmith_test name)
  cmake_parse_arguments(arg "QT" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${arg_LINK} landsmith_test_support GTest::gmock)
  if(NOT arg_QT)
    target_link_libraries(${name} PRIVATE GTest::gtest_main)
  endif()
  target_compile_definitions(${name} PRIVATE LANDSMITH_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
                                             LANDSMITH_BINARY_DIR="${CMAKE_BINARY_DIR}")
  set(environment "QT_QPA_PLATFORM=offscreen")
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST
                       PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300)
endfunction()
