set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOUIC ON) # no moc: screens carry no Q_OBJECT, their names hold umlauts
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport SerialPort)
find_package(SQLiteCpp REQUIRED)
find_package(SQLite3 REQUIRED)
find_path(MUSTACHE_INCLUDE_DIR kainjow/mustache.hpp REQUIRED)

add_compile_definitions(QT_NO_KEYWORDS QT_NO_FOREACH)
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(CCACHE ccache)
    if(CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
    endif()
endif()
