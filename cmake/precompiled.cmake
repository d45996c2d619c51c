# Qt's most used headers, read once instead of by every source: they take two thirds of the processor
# time of compiling. Only where TESSEL_PRECOMPILE asks for it, because a source compiled so need not
# name what it includes; the builds for development and for the checks go without and find what is
# missing. A compiler cache does better without them, so they give way to one.
if(NOT TESSEL_PRECOMPILE OR CMAKE_CXX_COMPILER_LAUNCHER)
    function(tessel_precompile)
    endfunction()
    return()
endif()

function(tessel_precompiled_headers name)
    cmake_parse_arguments(arg "" "" "HEADERS;QT" ${ARGN})
    list(TRANSFORM arg_QT PREPEND "Qt6::")
    list(TRANSFORM arg_HEADERS REPLACE "(.+)" "<\\1>")
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "" @ONLY)
    add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE ${arg_QT} tessel_options)
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

set(core_headers QByteArray QCoreApplication QFile QHash QJsonArray QJsonDocument QJsonObject QList
    QMap QObject QRegularExpression QSet QString QStringList QTimer)
tessel_precompiled_headers(tessel_precompiled_core QT Core HEADERS ${core_headers})
tessel_precompiled_headers(tessel_precompiled_widgets QT Widgets HEADERS ${core_headers}
    QApplication QDialog QEvent QHeaderView QLabel QLayout QLineEdit QPainter QPushButton QScrollArea
    QTreeWidget)

# Compiles a target with what suits the modules it links to. The kinds are as few as possible: a
# program that draws without widgets is compiled with what needs neither.
#
#   tessel_precompile(NAME [Qt6::module...])
function(tessel_precompile name)
    # Programs for Windows are compiled with a definition of their own, which these headers lack.
    get_target_property(type ${name} TYPE)
    if(WIN32 AND type STREQUAL "EXECUTABLE")
        return()
    endif()
    if("Qt6::Widgets" IN_LIST ARGN)
        target_precompile_headers(${name} REUSE_FROM tessel_precompiled_widgets)
    else()
        target_precompile_headers(${name} REUSE_FROM tessel_precompiled_core)
    endif()
endfunction()
