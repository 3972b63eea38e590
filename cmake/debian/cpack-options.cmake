# Read by cpack before it makes the packages (CPACK_PROJECT_CONFIG_FILE).

# A build with tests exports the library's internal classes for the test
# executables; hosts should get the library with only its public API visible.
if(CPACK_ZVC_BUILD_TESTS)
    message(WARNING "This build was configured with ZVC_BUILD_TESTS=ON and exports the library's "
        "internal classes. Make packages for hosts from a build configured with -DZVC_BUILD_TESTS=OFF.")
endif()
