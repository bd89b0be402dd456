# Helpers shared by the module folders under src/.

set_property(GLOBAL PROPERTY TAMO_MODULES "")

# tamo_module(NAME SOURCES... [LINKS targets...]) creates the static library tamo_NAME.
function(tamo_module name)
    cmake_parse_arguments(M "" "" "SOURCES;LINKS" ${ARGN})
    add_library(tamo_${name} STATIC ${M_SOURCES})
    target_include_directories(tamo_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(tamo_${name} PUBLIC tamo_options ${M_LINKS})
    set_property(GLOBAL APPEND PROPERTY TAMO_MODULES tamo_${name})
endfunction()

# Collects every library a target links, directly or through other targets of ours.
function(_tamo_collect_links target out)
    set(seen ${${out}})
    get_target_property(libs ${target} LINK_LIBRARIES)
    get_target_property(ilibs ${target} INTERFACE_LINK_LIBRARIES)
    foreach(lib IN LISTS libs ilibs)
        if(lib AND NOT lib IN_LIST seen)
            list(APPEND seen ${lib})
            if(TARGET ${lib} AND lib MATCHES "^tamo_")
                _tamo_collect_links(${lib} seen)
            endif()
        endif()
    endforeach()
    set(${out} ${seen} PARENT_SCOPE)
endfunction()

# The core must stay free of the widget toolkit: only the interface layer (tamo_app) may link it.
function(tamo_check_widget_free_modules)
    get_property(modules GLOBAL PROPERTY TAMO_MODULES)
    foreach(module IN LISTS modules)
        if(module STREQUAL "tamo_app")
            continue()
        endif()
        set(links "")
        _tamo_collect_links(${module} links)
        if("Qt6::Widgets" IN_LIST links OR "Qt::Widgets" IN_LIST links)
            message(FATAL_ERROR "${module} links Qt Widgets; only tamo_app may.")
        endif()
    endforeach()
endfunction()
