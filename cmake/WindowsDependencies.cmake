# The libraries that the cross build uses, under the names that the folders link to.

# Boost's headers work on every platform, but their folder also contains the headers of Linux: a folder with nothing but
# a link to Boost keeps those out.
set(VANTREL_WINDOWS_HEADERS ${PROJECT_BINARY_DIR}/headers)
if(NOT EXISTS /usr/include/boost/version.hpp)
    message(FATAL_ERROR "Boost's headers are missing: install libboost-dev")
endif()
file(MAKE_DIRECTORY ${VANTREL_WINDOWS_HEADERS})
file(CREATE_LINK /usr/include/boost ${VANTREL_WINDOWS_HEADERS}/boost SYMBOLIC)

add_library(Boost::headers INTERFACE IMPORTED)
target_include_directories(Boost::headers SYSTEM INTERFACE ${VANTREL_WINDOWS_HEADERS})
foreach(component boost filesystem)
    add_library(Boost::${component} INTERFACE IMPORTED)
    target_link_libraries(Boost::${component} INTERFACE Boost::headers)
endforeach()
