# A test's time limit in seconds. It guards against hangs alone: beside fourteen busy processes on two cores a suite of 8 s
# has taken nine minutes.
set(test_time_limit 1800)

# add_gtest_suites(TARGET PREFIX [TIMEOUT SECONDS] [LOCK NAME]): one ctest test for each suite found in the target's
# sources, named PREFIX.Suite. A suite a process keeps a run under Wine short, and a crash costs only its own suite.
# LOCK: each has one of the run's things of that name for itself while it runs; see lock_one.
function(add_gtest_suites target prefix)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "TIMEOUT;LOCK" "")
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT ${test_time_limit})
    endif()
    get_target_property(sources ${target} SOURCES)
    set(suites)
    foreach(source ${sources})
        if(NOT source MATCHES "\\.cpp$")
            continue()
        endif()
        get_filename_component(path "${source}" ABSOLUTE)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${path}")
        file(STRINGS "${path}" lines REGEX "^ *TEST(_F|_P)?\\(")
        foreach(line ${lines})
            # What is disabled runs by itself only.
            if(NOT line MATCHES ", *DISABLED_" AND line MATCHES "TEST(_F|_P)?\\( *([A-Za-z0-9_]+)")
                list(APPEND suites ${CMAKE_MATCH_2})
            endif()
        endforeach()
    endforeach()
    list(REMOVE_DUPLICATES suites)
    foreach(suite ${suites})
        add_test(NAME ${prefix}.${suite} COMMAND ${target} "--gtest_filter=${suite}.*:*/${suite}.*" --gtest_brief=1)
        set_tests_properties(${prefix}.${suite} PROPERTIES TIMEOUT ${arg_TIMEOUT}
            FAIL_REGULAR_EXPRESSION "0 tests from 0 test suites ran|PASSED  . 0 tests")
        if(arg_LOCK)
            lock_one(${arg_LOCK} ${prefix}.${suite})
        endif()
    endforeach()
endfunction()

# lock_one(NAME TEST): while the test runs, one of the run's things of that name is the test's alone. run-tests has so
# many displays, each with a Wine prefix; ctest tells scripts/run-under-wine in the environment which one it is.
function(lock_one name test)
    set_tests_properties(${test} PROPERTIES RESOURCE_GROUPS ${name}:1)
endfunction()
