# curvegrab_add_folder(<name> SOURCES <files…> LINK <targets…>)
# A folder of src/ is a static library of the same name. What it links says which
# folders it may include; the graph runs downwards only (docs/architecture.md).
function(curvegrab_add_folder name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
endfunction()

# As above, for a folder that uses Qt: meta objects, resources and .ui files are
# compiled, and the texts of .ui files are looked up by their ids.
function(curvegrab_add_qt_folder name)
    curvegrab_add_folder(${name} ${ARGN})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON AUTOUIC ON AUTORCC ON
        AUTOUIC_OPTIONS "--idbased;--no-autoconnection;--connections;pmf")
    target_link_libraries(${name} PUBLIC curvegrab_qt_options Qt6::Core Qt6::Gui)
    if(CURVEGRAB_PRECOMPILED_HEADERS AND NOT name STREQUAL platform)
        target_precompile_headers(${name} REUSE_FROM platform)
    endif()
endfunction()

# curvegrab_add_module(<folder> <name> SOURCES <files…> LINK <targets…>)
# A part of a folder that is a library of its own, curvegrab<name>. The program loads it when it is
# needed, and with it what it is linked with (src/platform/Modules.h); whoever links the folder gets
# it built. It has its sources to itself: nothing of the folder is linked into it.
function(curvegrab_add_module folder name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    set(module ${name}module)
    add_library(${module} MODULE ${ARG_SOURCES})
    set_target_properties(${module} PROPERTIES
        AUTOMOC ON PREFIX "" OUTPUT_NAME curvegrab${name}
        LIBRARY_OUTPUT_DIRECTORY ${CURVEGRAB_MODULE_FOLDER})
    target_link_libraries(${module} PRIVATE curvegrab_qt_options Qt6::Core ${ARG_LINK})
    add_dependencies(${folder} ${module})
    install(TARGETS ${module} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/curvegrab)
endfunction()

# curvegrab_add_test(<name> SOURCES <files…> LINK <targets…> [GUI] [X11])
# GUI: the test has a QApplication on the offscreen platform.
# X11: it runs once more in a real window system (Xvfb) under the label x11.
function(curvegrab_add_test name)
    cmake_parse_arguments(ARG "GUI;X11" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} curvegrab_options curvegrab_test_options
        GTest::gtest)
    if(ARG_GUI)
        set_target_properties(${name} PROPERTIES AUTOMOC ON)
        target_link_libraries(${name} PRIVATE test_support_gui)
        if(CURVEGRAB_PRECOMPILED_TESTS)
            target_precompile_headers(${name} REUSE_FROM test_support_gui)
        endif()
    else()
        target_link_libraries(${name} PRIVATE GTest::gtest_main)
    endif()
    set(environment "QT_QPA_PLATFORM=offscreen:configfile=${PROJECT_SOURCE_DIR}/tests/support/screen.json;QT_SCALE_FACTOR=1;QT_LOGGING_RULES=qt.qpa.*=false")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT "${environment}")
    if(ARG_X11)
        add_test(NAME ${name}-x11
            COMMAND ${PROJECT_SOURCE_DIR}/tests/support/in-xvfb $<TARGET_FILE:${name}>)
        set_tests_properties(${name}-x11 PROPERTIES TIMEOUT 600 LABELS x11
            ENVIRONMENT "QT_QPA_PLATFORM=xcb;QT_SCALE_FACTOR=1")
    endif()
endfunction()

# curvegrab_add_catalogue(<target> [LANGUAGES <codes…>]): the texts in these languages, English if
# none is named, each compiled from one .ts file per folder of src/ (resources/i18n/<code>/) into the
# resource :/i18n/curvegrab_<code>.qm. A folder there makes a language: see docs/translating.md.
file(GLOB CURVEGRAB_LANGUAGES RELATIVE ${PROJECT_SOURCE_DIR}/resources/i18n
    LIST_DIRECTORIES true CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/i18n/*)
foreach(language IN LISTS CURVEGRAB_LANGUAGES)
    file(GLOB CURVEGRAB_TEXTS_${language} CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/resources/i18n/${language}/*.ts)
endforeach()
function(curvegrab_add_catalogue target)
    cmake_parse_arguments(ARG "" "" "LANGUAGES" ${ARGN})
    if(NOT ARG_LANGUAGES)
        set(ARG_LANGUAGES en)
    endif()
    get_target_property(lrelease Qt6::lrelease IMPORTED_LOCATION)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_texts)
    set(catalogues "")
    foreach(language IN LISTS ARG_LANGUAGES)
        set(catalogue ${folder}/curvegrab_${language}.qm)
        set(texts ${CURVEGRAB_TEXTS_${language}})
        add_custom_command(OUTPUT ${catalogue}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
            COMMAND ${lrelease} -silent -idbased ${texts} -qm ${catalogue}
            DEPENDS ${texts} VERBATIM)
        set_source_files_properties(${catalogue} PROPERTIES GENERATED ON)
        list(APPEND catalogues ${catalogue})
    endforeach()
    # Every start reads them: as they are, there is nothing to unpack.
    qt_add_resources(${target} ${target}_texts PREFIX /i18n BASE ${folder} FILES ${catalogues}
        OPTIONS --no-compress)
endfunction()

file(GLOB CURVEGRAB_ICONS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/icons/*.svg)

# curvegrab_add_help(<target>): the help book as the resource :/help/en, and what of its pages and
# pictures there is in other languages beside it. The description of the document file is one of its
# pages.
file(GLOB CURVEGRAB_HELP CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/help/*/*.html
    ${PROJECT_SOURCE_DIR}/resources/help/en/*.css
    ${PROJECT_SOURCE_DIR}/resources/help/en/contents.txt
    ${PROJECT_SOURCE_DIR}/resources/help/*/pictures/*.png)
function(curvegrab_add_help target)
    set(format ${PROJECT_SOURCE_DIR}/docs/file-format.md)
    set_source_files_properties(${format} PROPERTIES QT_RESOURCE_ALIAS en/file-format.md)
    qt_add_resources(${target} ${target}_help PREFIX /help BASE ${PROJECT_SOURCE_DIR}/resources/help
        FILES ${CURVEGRAB_HELP} ${format})
endfunction()
