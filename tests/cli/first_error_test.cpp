#include "first_error.h"

#include <gtest/gtest.h>

#include "collected_findings.h"

namespace mivo {
namespace {

TEST(FirstError, IsNothingWithoutAnError) {
  FirstError error;
  error.Report({FindingKind::UnknownKey, 1, 1, u"", u""});
  EXPECT_EQ(error.Get(), std::nullopt);
}

TEST(FirstError, OutweighsWarningsAndLaterErrors) {
  FirstError error;
  const Finding first{FindingKind::InvalidValue, 2, 1, u"", u""};
  error.Report({FindingKind::UnknownKey, 1, 1, u"", u""});
  error.Report(first);
  error.Report({FindingKind::DataCutOff, 3, 1, u"", u""});
  error.Report({FindingKind::UnclosedRecord, 4, 1, u"", u""});
  EXPECT_EQ(error.Get(), first);
}

}  // namespace
}  // namespace mivo
