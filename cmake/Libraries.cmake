# The libraries behind the platform interfaces; each is used in one folder only.

find_package(Threads REQUIRED)
find_package(SQLite3 REQUIRED)
find_package(SQLiteCpp REQUIRED)
find_package(EXPAT REQUIRED)
find_package(ICU REQUIRED COMPONENTS uc i18n)
find_package(tomlplusplus REQUIRED)
find_package(CLI11 REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(gsf REQUIRED IMPORTED_TARGET libgsf-1)
pkg_check_modules(gmime REQUIRED IMPORTED_TARGET gmime-3.0)
pkg_check_modules(ical REQUIRED IMPORTED_TARGET libical)
