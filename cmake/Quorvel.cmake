# What every target of the project shares: language level, warnings, sanitizers, folder layout.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

add_library(quorvel-flags INTERFACE)
target_include_directories(quorvel-flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quorvel-flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wold-style-cast
    -Woverloaded-virtual -Wcast-align
    $<$<BOOL:${QUORVEL_WERROR}>:-Werror>)
target_compile_definitions(quorvel-flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(QUORVEL_SANITIZE)
    # Checks that stand before every access to a member and take a third of the compiling. What a null
    # pointer does the address sanitizer reports as well; the others are left to the fuzzer's build,
    # which has them all.
    if(NOT QUORVEL_FUZZ AND QUORVEL_SANITIZE MATCHES undefined)
        set(QUORVEL_SANITIZE_NOT -fno-sanitize=null,alignment,object-size,vptr)
    endif()
    target_compile_options(quorvel-flags INTERFACE
        -fsanitize=${QUORVEL_SANITIZE} ${QUORVEL_SANITIZE_NOT} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(quorvel-flags INTERFACE -fsanitize=${QUORVEL_SANITIZE})
endif()

# What makes an error in the program harder to make use of. The sanitizers see to the same themselves,
# and the optimised builds alone can check the lengths of what is copied.
if(NOT QUORVEL_SANITIZE)
    include(CheckCXXCompilerFlag)
    check_cxx_compiler_flag(-fcf-protection=full QUORVEL_HAS_CF_PROTECTION)
    target_compile_options(quorvel-flags INTERFACE -fstack-protector-strong
        $<$<BOOL:${QUORVEL_HAS_CF_PROTECTION}>:-fcf-protection=full>
        $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE>
        $<$<CONFIG:Release,RelWithDebInfo>:-D_FORTIFY_SOURCE=$<IF:$<CXX_COMPILER_ID:GNU>,3,2>>)
    target_link_options(quorvel-flags INTERFACE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()

# Nearly all of a build's time goes into Qt's headers, so each family of targets reads them once. The
# clang preset reads them per file, which keeps the includes of each file honest.
add_subdirectory(${CMAKE_CURRENT_LIST_DIR}/precompiled ${CMAKE_BINARY_DIR}/precompiled)

# Which of them the targets of a folder use, "core" or "widgets"; set in the folder's CMakeLists.txt.
set(QUORVEL_PRECOMPILED core)

# quorvel_library(NAME SOURCES file... [LINK library...] [QT])
# One folder's code as a static library. QT runs moc, uic and rcc over it.
function(quorvel_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "QT" "" "SOURCES;LINK")
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC ${arg_LINK} quorvel-flags)
    if(arg_QT)
        set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
        target_precompile_headers(${name} REUSE_FROM precompiled-${QUORVEL_PRECOMPILED})
    endif()
endfunction()

# The toolkit's newer macros that wait count their milliseconds in an int. What is linked last has
# the last word among the options.
add_library(quorvel-test-flags INTERFACE)
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5)
    target_compile_options(quorvel-test-flags INTERFACE -Wno-conversion)
endif()

# What the thread sanitizer's run builds.
add_custom_target(thread-tests)

# What the run without a sanitizer builds.
add_custom_target(plain-tests)

# quorvel_plain_tests(TEST test... NEEDS target...)
# Has these tests run without a sanitizer, too, or only so. All others `./dev test` runs under
# sanitizers alone, which saves building them twice.
function(quorvel_plain_tests)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "TEST;NEEDS")
    set_property(TEST ${arg_TEST} APPEND PROPERTY LABELS plain)
    if(arg_NEEDS)
        add_dependencies(plain-tests ${arg_NEEDS})
    endif()
endfunction()

# quorvel_tests(PROGRAM CLASSES class... LINK library... [SOURCES file...] [WRAP symbol...]
#               [LABELS label...] [THREADS class...])
# One program of test classes, each in the file of its name and a test of its own for ctest, with an
# offscreen screen. SOURCES are further files. WRAP names calls that the tests replace at link time
# by __wrap_CALL. THREADS names the classes that belong into the thread sanitizer's run.
function(quorvel_tests program)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "CLASSES;LINK;SOURCES;WRAP;THREADS")
    list(TRANSFORM arg_CLASSES APPEND .cpp OUTPUT_VARIABLE sources)
    add_executable(${program} ${sources} ${arg_SOURCES})
    # The sanitizers' presets build libraries from files joined together, which saves minutes. Test
    # classes have names that are their own only within their file.
    set_target_properties(${program} PROPERTIES AUTOMOC ON UNITY_BUILD OFF
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${program} PRIVATE ${arg_LINK} tests-main-${QUORVEL_PRECOMPILED}
        Qt6::Test quorvel-flags quorvel-test-flags)
    target_precompile_headers(${program} REUSE_FROM precompiled-${QUORVEL_PRECOMPILED}-test)
    list(TRANSFORM arg_WRAP PREPEND -Wl,--wrap= OUTPUT_VARIABLE wrapped)
    target_link_options(${program} PRIVATE ${wrapped})
    foreach(class IN LISTS arg_CLASSES)
        add_test(NAME ${class} COMMAND ${program} ${class})
        set_tests_properties(${class} PROPERTIES
            ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FORCE_STDERR_LOGGING=1")
    endforeach()
    if(arg_THREADS)
        set_property(TEST ${arg_THREADS} APPEND PROPERTY LABELS threads)
        add_dependencies(thread-tests ${program})
    endif()
endfunction()

# quorvel_language_tests(PROGRAM CLASS function...)
# Runs these functions of a test class, one of PROGRAM's, once more in each language that there is.
function(quorvel_language_tests program class)
    get_property(languages GLOBAL PROPERTY QUORVEL_LANGUAGES)
    foreach(language IN LISTS languages)
        add_test(NAME ${class}-in-${language} COMMAND ${program} ${class} ${ARGN})
        set_tests_properties(${class}-in-${language} PROPERTIES ENVIRONMENT
            "QT_QPA_PLATFORM=offscreen;QT_FORCE_STDERR_LOGGING=1;QUORVEL_TEST_LANGUAGE=${language}")
    endforeach()
endfunction()
