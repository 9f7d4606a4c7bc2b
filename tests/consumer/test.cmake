# SPDX-FileCopyrightText: 2026 The smilparser authors
# SPDX-License-Identifier: MIT

# Installs the build, moves the installation, and builds and runs hosts against it: through the CMake package, through
# pkg-config, and with the library loaded at run time.
#
# cmake -D BUILD_DIR=... -D WORK_DIR=... -D QT_DIR=... -D LIBDIR=... -D CXX=... -D CXX_FLAGS=...
#     -D GENERATOR=... -D SOURCE_DIR=... -P test.cmake

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(ENV{DESTDIR})
set(prefix "${WORK_DIR}/moved")
file(REMOVE_RECURSE "${WORK_DIR}")
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
file(RENAME "${WORK_DIR}/installed" "${prefix}")
set(library "${prefix}/${LIBDIR}/libsmilparser.so.1")

file(GLOB_RECURSE pages "${prefix}/*.md")
foreach(page IN LISTS pages)
    file(READ "${page}" text)
    string(REPLACE "](" "\t" text "${text}")
    string(REGEX MATCHALL "\t[^:#)]+" links "${text}")
    cmake_path(GET page PARENT_PATH dir)
    foreach(link IN LISTS links)
        string(STRIP "${link}" link)
        if(NOT EXISTS "${dir}/${link}")
            message(FATAL_ERROR "${page} has a link to ${link}, which is not installed.")
        endif()
    endforeach()
endforeach()

cmake_path(GET QT_DIR FILENAME qt)
string(REGEX MATCH "[0-9]+" major "${qt}")
set(configure "${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${CMAKE_CURRENT_LIST_DIR}" "-D${qt}_DIR=${QT_DIR}"
    "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
)
run(${configure} -B "${WORK_DIR}/build" "-DCMAKE_PREFIX_PATH=${prefix}")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/build")
run("${WORK_DIR}/build/linked")
run("${WORK_DIR}/build/loading" "${library}")
execute_process(COMMAND "${WORK_DIR}/build/refused" "${library}" RESULT_VARIABLE status)
if(NOT status EQUAL 1)
    message(FATAL_ERROR "A host that does not export its flag should not be able to load the library: ${status}")
endif()

# Where the library was replaced by one for another Qt, the loader says so: the host would crash.
set(other "${WORK_DIR}/other/libsmilparser.so.1")
file(WRITE "${other}.map" "SMILPARSER_1_QTOTHER { *; };")
file(WRITE "${other}.cpp" "")
run("${CXX}" -shared "-Wl,--version-script,${other}.map" "${other}.cpp" -o "${other}")
execute_process(COMMAND "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${WORK_DIR}/other" "${WORK_DIR}/build/linked"
    ERROR_VARIABLE error
)
if(NOT error MATCHES "version .SMILPARSER_1_QT${major}. not found")
    message(FATAL_ERROR "The loader should refuse a library for another Qt: ${error}")
endif()

set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig")
execute_process(COMMAND pkg-config --cflags --libs smilparser
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
)
separate_arguments(flags UNIX_COMMAND "-std=c++17 -fPIC ${CXX_FLAGS} ${flags}")
run("${CXX}" "${CMAKE_CURRENT_LIST_DIR}/main.cpp" -o "${WORK_DIR}/pkgconfig" ${flags})
set(ENV{LD_LIBRARY_PATH} "${prefix}/${LIBDIR}")
run("${WORK_DIR}/pkgconfig")

# An app on the Qt Quick module, which is not where this Qt looks.
if(EXISTS "${BUILD_DIR}/qml")
    file(GLOB_RECURSE qmldir "${prefix}/qmldir")
    cmake_path(GET qmldir PARENT_PATH module)
    cmake_path(GET module PARENT_PATH modules)
    run("${CMAKE_COMMAND}" -G "${GENERATOR}" -S "${SOURCE_DIR}/examples/player" -B "${WORK_DIR}/player"
        "-D${qt}_DIR=${QT_DIR}" -DQT_MAJOR_VERSION=${major} "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
    )
    run("${CMAKE_COMMAND}" --build "${WORK_DIR}/player")
    execute_process(COMMAND timeout 3 env QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software
        "QML2_IMPORT_PATH=${modules}"
        "${WORK_DIR}/player/player" "${SOURCE_DIR}/examples/holiday.smil" "${SOURCE_DIR}/examples/holiday"
        RESULT_VARIABLE status
    )
    if(NOT status EQUAL 124) # of a program that timeout has stopped
        message(FATAL_ERROR "The player should have played until it was stopped: ${status}")
    endif()
endif()

# As a part of the host's project, the library is for the host's Qt and brings nothing that the host could have itself.
set(ENV{LD_LIBRARY_PATH})
run(${configure} -B "${WORK_DIR}/part" "-DSOURCE_DIR=${SOURCE_DIR}" -DQT=${major})
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/part" --target linked)
run("${WORK_DIR}/part/linked")
