// Tests that need a camera nobody here controls (Aravis's fake GigE Vision
// camera on the loopback interface) skip when it can't be had. The skips are
// counted, so that main() reports such a run as skipped (CTest's
// SKIP_RETURN_CODE) and never as passed; a run in which anything failed is a
// failure, whatever else was skipped.
#pragma once

#include <QtTest>

namespace FakeCameraTestSupport {

//! What a run that skipped for want of a camera, and failed nothing, exits with.
constexpr int skippedExitCode = 77;

//! How many tests of this run skipped for want of a camera.
inline int& skippedWithoutCamera()
{
    static int count = 0;
    return count;
}

//! The exit code of a run: its failures, or skippedExitCode when it failed nothing but skipped for want of a camera.
inline int exitCode(int failures)
{
    return failures == 0 && skippedWithoutCamera() > 0 ? skippedExitCode : failures;
}

} // namespace FakeCameraTestSupport

//! Skips the present test for want of a camera, and counts it.
#define SKIP_WITHOUT_CAMERA(message)                                                                                   \
    do {                                                                                                               \
        ++FakeCameraTestSupport::skippedWithoutCamera();                                                               \
        QSKIP(message);                                                                                                \
    } while (false)
