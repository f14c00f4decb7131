#pragma once

#include <UIAPICommonTest/GoogleTest.h>

#include <string>

namespace KVCAM::Testing {

/// An ERROR line of UIAPICommonPara, as recorded by LogCapture.
inline std::string paraError(std::string const & text)
{
    return "E UIAPICommonPara: " + text;
}

/// The usual ERROR line of a failed operation.
inline std::string operationError(std::string const & operation)
{
    return paraError("KVCAM UIAPI " + operation + " error");
}

/// An information box with the usual title, as recorded by MessageCapture.
inline std::string informationBox(std::string const & text)
{
    return "information|Information|" + text;
}

/// A view handle for tests: any address will do.
inline void const * viewHandle(int number)
{
    static char const handles[1024] = {};
    return &handles[number];
}

} // namespace KVCAM::Testing
