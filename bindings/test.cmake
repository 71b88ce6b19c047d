# What the tests of languages have in common.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
cmake_path(GET LIBRARY PARENT_PATH folder)
set(ENV{LD_LIBRARY_PATH} ${folder})
set(ENV{TESSARO_LIBRARY} ${LIBRARY})

function(run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${WORK} RESULT_VARIABLE failed)
  if(failed)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}: ${failed}")
  endif()
endfunction()

# The picture of the examples, which is the same from every language.
function(expect_evening)
  file(SHA256 ${WORK}/evening.bmp found)
  if(NOT found STREQUAL 020b414c1668554ee3dde2dd44b2fc71b472babc6dc891922a915fd80745a228)
    message(FATAL_ERROR "the example painted another picture: ${WORK}/evening.bmp, ${found}")
  endif()
endfunction()
