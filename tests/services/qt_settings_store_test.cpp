#include "services/qt_settings_store.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "services/settings_table.h"

namespace tessarondel {
namespace {

TEST(QtSettingsStore, RoundTripsTextsAcrossInstancesAndKeepsTheFileOwnerOnly) {
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("sub/Tessarondel.conf"));
    {
        QtSettingsStore store(file);
        store.Write(u"Option", u"Password", u"pa, ss=wörd ");
        store.Write(u"FormInfo", u"x", u"None");
    }
    ASSERT_TRUE(QFile::exists(file));
    EXPECT_EQ(QFile::permissions(file) &
                  (QFileDevice::ReadGroup | QFileDevice::ReadOther | QFileDevice::WriteGroup | QFileDevice::WriteOther),
              QFileDevice::Permissions());
    QtSettingsStore again(file);
    EXPECT_EQ(again.Read(u"Option", u"Password", u"?"), u"pa, ss=wörd ");
    EXPECT_EQ(again.Read(u"FormInfo", u"x", u"?"), u"None");
    EXPECT_EQ(LoadSettings(again).Network.Password, u"pa, ss=wörd ");
    // Sections stay apart and keys are case-sensitive.
    EXPECT_EQ(again.Read(u"FormInfo", u"Password", u"fallback"), u"fallback");
    EXPECT_EQ(again.Read(u"Option", u"password", u"fallback"), u"fallback");
}

}  // namespace
}  // namespace tessarondel
