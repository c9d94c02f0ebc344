#include "services/qt_settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "services/settings_table.h"

namespace tessarondel {

namespace {

QString ToQString(std::u16string_view text) { return QString::fromUtf16(text.data(), qsizetype(text.size())); }

QString KeyPath(std::u16string_view section, std::u16string_view key) {
    return ToQString(section) + QLatin1Char('/') + ToQString(key);
}

constexpr QFileDevice::Permissions OwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

}  // namespace

QtSettingsStore::QtSettingsStore()
    : settings_(QSettings::IniFormat, QSettings::UserScope, ToQString(ApplicationName), ToQString(ApplicationName)) {}

QtSettingsStore::QtSettingsStore(const QString& fileName) : settings_(fileName, QSettings::IniFormat) {}

QtSettingsStore::~QtSettingsStore() { Flush(); }

std::u16string QtSettingsStore::Read(std::u16string_view section, std::u16string_view key,
                                     std::u16string_view fallback) const {
    const QVariant value = settings_.value(KeyPath(section, key));
    if (!value.isValid()) return std::u16string(fallback);
    return value.toString().toStdU16String();
}

void QtSettingsStore::Write(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
    RestrictToOwner();
    settings_.setValue(KeyPath(section, key), ToQString(value));
}

void QtSettingsStore::Flush() {
    RestrictToOwner();
    settings_.sync();
    RestrictToOwner();
}

// The file is saved by replacing it with a new one that takes over the old
// file's mode, so an owner-only file created before the first save stays so.
void QtSettingsStore::RestrictToOwner() {
    QFile file(settings_.fileName());
    if (!file.exists()) {
        QDir().mkpath(QFileInfo(file).absolutePath());
        if (!file.open(QIODevice::WriteOnly)) return;
        file.close();
    }
    file.setPermissions(OwnerOnly);
}

}  // namespace tessarondel
