#ifndef MIVO_TESTS_SUPPORT_WINDOWS_RAPIDCHECK_GTEST_H
#define MIVO_TESTS_SUPPORT_WINDOWS_RAPIDCHECK_GTEST_H

// Stands before RapidCheck's own header of this name where there is no RapidCheck to link: the
// properties are compiled as far as a template is that nobody instantiates, and reported as
// skipped.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#define RC_GTEST_PROP(Suite, Name, Parameters)                   \
  TEST(Suite, Name) {                                            \
    GTEST_SKIP() << "a property, which is tested on Linux only"; \
  }                                                              \
  template <typename>                                            \
  [[maybe_unused]] void Property_##Suite##_##Name Parameters

#endif
