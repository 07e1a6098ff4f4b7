# Debian packages, one for each component that is installed. In a build tree that is up to date:
#
#   cpack -B build/packages
#
# makes libkzcommon1_1.0.0_amd64.deb and so on.
set(KZ_PACKAGE_MAINTAINER "KZCOMMON developers <kzcommon@localhost>" CACHE STRING
    "Name and address of who makes the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT ${KZ_PACKAGE_MAINTAINER})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${PROJECT_BINARY_DIR}/common ${PROJECT_BINARY_DIR}/lexicon)

if(KZ_32BIT)
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE i386)
endif()

get_cmake_property(installed COMPONENTS)
set(described)

# kz_package(NAME SECTION DESCRIPTION [NEEDS name...] [FIELDS (field value)...]): the package of the
# component NAME, if there is one. It depends on those of the components NEEDS that there are.
macro(kz_package name section description)
  list(APPEND described ${name})
  if(${name} IN_LIST installed)
    cmake_parse_arguments(package "" "" "NEEDS;FIELDS" ${ARGN})
    string(TOUPPER ${name} upper)
    list(APPEND CPACK_COMPONENTS_ALL ${name})
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${description}")
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
    foreach(needed IN LISTS package_NEEDS)
      if(needed IN_LIST installed)
        list(APPEND CPACK_COMPONENT_${upper}_DEPENDS ${needed})
      endif()
    endforeach()
    while(package_FIELDS)
      list(POP_FRONT package_FIELDS field value)
      set(CPACK_DEBIAN_${upper}_PACKAGE_${field} ${value})
    endwhile()
    install(FILES cmake/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
            COMPONENT ${name} EXCLUDE_FROM_ALL)
  endif()
endmacro()

set(CPACK_COMPONENTS_ALL)
set(common libkzcommon${PROJECT_VERSION_MAJOR})
set(lexicon libkzlexicon${PROJECT_VERSION_MAJOR})
kz_package(${common} libs "common library of a dictionary-based translation system
Dictionary files with their letter index, entries, Russian-aware text, grammar and inflection.")
kz_package(${lexicon} libs "dictionaries of a translation system in UTF-8
Builds, searches and explains dictionaries, on top of libkzcommon."
  NEEDS ${common})
kz_package(libkzcommon-dev libdevel "development files of libkzcommon
Headers, CMake package and pkg-config file of the library."
  NEEDS ${common} ${lexicon} FIELDS SUGGESTS kzdic-data)
kz_package(kzdic text "build, search and convert dictionaries of a translation system
The command-line tool with its manual pages and completions for bash and zsh."
  NEEDS ${lexicon} ${common} FIELDS RECOMMENDS kzdic-data)
kz_package(kzdic-data text "sample dictionaries for kzdic
Small dictionaries between Russian and English, French and German, a Russian inflection table,
the sources of both, and the description of the file formats."
  FIELDS ARCHITECTURE all ENHANCES kzdic)
if(KZ_PYTHON)
  # Its compiled part is of one version of Python.
  get_directory_property(minor DIRECTORY python DEFINITION Python_VERSION_MINOR)
  math(EXPR next "${minor} + 1")
endif()
kz_package(python3-kzlexicon python "dictionaries of a translation system in Python
The Python module of libkzlexicon."
  NEEDS ${lexicon} ${common} FIELDS DEPENDS "python3 (>= 3.${minor}), python3 (<< 3.${next})")

list(REMOVE_ITEM installed ${described})
if(installed)
  message(FATAL_ERROR "No package in cmake/packages.cmake for the components: ${installed}")
endif()
include(CPack)
