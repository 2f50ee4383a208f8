#include "base/SingleInstance.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(SingleInstance, theSecondOfAFolderIsTurnedAwayUntilTheFirstEnds) {
    const QTemporaryDir folder;
    const QTemporaryDir other;
    {
        const SingleInstance one(folder.path() + u'/');
        EXPECT_TRUE(one.first());
        EXPECT_FALSE(SingleInstance(folder.path()).first());
        EXPECT_TRUE(SingleInstance(other.path()).first());
    }
    EXPECT_TRUE(SingleInstance(folder.path()).first());
}

TEST(SingleInstance, aFolderThatCannotBeLockedDoesNotStopTheProgram) {
    EXPECT_TRUE(SingleInstance(u"/no/such/folder/"_s).first());
}

} // namespace
} // namespace orvinel
