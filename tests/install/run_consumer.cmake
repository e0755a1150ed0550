# Installs, builds the consumer in two ways, runs it, and checks that a package of another major version is refused.
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
set(configure ${CMAKE_COMMAND} -S ${CONSUMER_DIR} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix -DCMAKE_CXX_COMPILER=${CXX}
              -DCMAKE_C_COMPILER=${CC})
run(${configure} -B ${WORK_DIR}/consumer -DVORQ_VERSION=7.2)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/consumer)
run(${WORK_DIR}/consumer/c_consumer)

execute_process(COMMAND ${configure} -B ${WORK_DIR}/refused -DVORQ_VERSION=8.0 RESULT_VARIABLE refused OUTPUT_QUIET
                ERROR_QUIET)
if(refused EQUAL 0)
  message(FATAL_ERROR "a package of version 7 was taken for version 8")
endif()

file(GLOB_RECURSE pkg_config_file ${WORK_DIR}/prefix/*/vorqmodel.pc)
cmake_path(GET pkg_config_file PARENT_PATH pkg_config_folder)
execute_process(COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pkg_config_folder} pkg-config --cflags --libs vorqmodel
                OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags)
cmake_path(GET pkg_config_folder PARENT_PATH library_folder)
run(${CXX} -std=c++20 ${CONSUMER_DIR}/consumer.cpp -o ${WORK_DIR}/by_pkg_config ${flags} -Wl,-rpath,${library_folder}
    -Wl,-rpath-link,${library_folder})
run(${WORK_DIR}/by_pkg_config)
