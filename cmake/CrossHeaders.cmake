# Libraries that are headers alone serve every platform. Their usual folder holds the headers of the host's own
# system as well, which must not get near a program for another one: so they get a folder to themselves.

set(cross_headers ${PROJECT_BINARY_DIR}/headers)
file(COPY /usr/include/CLI /usr/include/nlohmann DESTINATION ${cross_headers}/include)
file(COPY /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json DESTINATION ${cross_headers}/share/cmake)
list(APPEND CMAKE_FIND_ROOT_PATH ${cross_headers})
