#include "app/instance_lock.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

using namespace vorlexa::app;
using vorlexa::test::TempFolder;

TEST(InstanceLock, SecondCopyOnTheSameFolderIsRefusedUntilTheFirstLetsGo) {
    TempFolder dir;
    InstanceLock first;
    ASSERT_TRUE(first.acquire(dir.path()));
    EXPECT_TRUE(first.held());

    InstanceLock second;
    EXPECT_FALSE(second.acquire(dir.path()));
    EXPECT_TRUE(second.heldElsewhere());
    EXPECT_FALSE(second.held());

    first.release();
    EXPECT_TRUE(second.acquire(dir.path()));
    EXPECT_FALSE(second.heldElsewhere());
}

TEST(InstanceLock, OtherFoldersAreIndependent) {
    TempFolder a;
    TempFolder b;
    InstanceLock la;
    InstanceLock lb;
    EXPECT_TRUE(la.acquire(a.path()));
    EXPECT_TRUE(lb.acquire(b.path()));
}

TEST(InstanceLock, TheLockGoesWithTheObject) {
    TempFolder dir;
    {
        InstanceLock first;
        ASSERT_TRUE(first.acquire(dir.path()));
    }
    InstanceLock second;
    EXPECT_TRUE(second.acquire(dir.path()));
}
