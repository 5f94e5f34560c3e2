#include "recording/flat_calls.h"

#include <cstddef>
#include <tuple>

#ifndef WINGDIPAPI
#define WINGDIPAPI
#endif

namespace {

template <typename Function>
struct ParametersOf;
template <typename... Parameters>
struct ParametersOf<Gdiplus::GpStatus(Parameters...)> {
    template <std::size_t index>
    using At = std::tuple_element_t<index, std::tuple<Parameters...>>;
};

}  // namespace

#define PARAMETER(name, i) ParametersOf<decltype(name)>::At<i> a##i
#define PARAMETERS_1(name) PARAMETER(name, 0)
#define PARAMETERS_2(name) PARAMETERS_1(name), PARAMETER(name, 1)
#define PARAMETERS_3(name) PARAMETERS_2(name), PARAMETER(name, 2)
#define PARAMETERS_4(name) PARAMETERS_3(name), PARAMETER(name, 3)
#define PARAMETERS_5(name) PARAMETERS_4(name), PARAMETER(name, 4)
#define PARAMETERS_6(name) PARAMETERS_5(name), PARAMETER(name, 5)
#define PARAMETERS_7(name) PARAMETERS_6(name), PARAMETER(name, 6)
#define PARAMETERS_8(name) PARAMETERS_7(name), PARAMETER(name, 7)
#define PARAMETERS_9(name) PARAMETERS_8(name), PARAMETER(name, 8)
#define ARGUMENTS_1 a0
#define ARGUMENTS_2 ARGUMENTS_1, a1
#define ARGUMENTS_3 ARGUMENTS_2, a2
#define ARGUMENTS_4 ARGUMENTS_3, a3
#define ARGUMENTS_5 ARGUMENTS_4, a4
#define ARGUMENTS_6 ARGUMENTS_5, a5
#define ARGUMENTS_7 ARGUMENTS_6, a6
#define ARGUMENTS_8 ARGUMENTS_7, a7
#define ARGUMENTS_9 ARGUMENTS_8, a8
#define DEFINE(count, name)                                    \
    GpStatus WINGDIPAPI name(PARAMETERS_##count(name)) {       \
        return flat_calls::Flat<name>::now(ARGUMENTS_##count); \
    }

namespace Gdiplus::DllExports {
extern "C" {
FLAT_FUNCTIONS(DEFINE)
}  // extern "C"
}  // namespace Gdiplus::DllExports
