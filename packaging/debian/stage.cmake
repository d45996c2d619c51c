# Run by CPack between installing into its own folder and packing that: adds what Debian wants in
# every package, in the form it wants it.
set(share "${CPACK_TEMPORARY_DIRECTORY}/usr/share")
set(documents "${share}/doc/tessel")

file(GLOB pages "${share}/man/man1/*.1")
execute_process(COMMAND gzip --best --no-name ${pages} COMMAND_ERROR_IS_FATAL ANY)

execute_process(
    COMMAND "${CMAKE_CURRENT_LIST_DIR}/changelog" "${CMAKE_CURRENT_LIST_DIR}/../../CHANGELOG.md"
        "${CPACK_PACKAGE_VERSION}" "${CPACK_DEBIAN_PACKAGE_MAINTAINER}" "$ENV{TESSEL_PACKAGE_DATE}"
    OUTPUT_FILE "${documents}/changelog"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND gzip --best --no-name "${documents}/changelog" COMMAND_ERROR_IS_FATAL ANY)
file(COPY "${CMAKE_CURRENT_LIST_DIR}/copyright" DESTINATION "${documents}")
