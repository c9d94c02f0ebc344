#pragma once

#include <QSettings>
#include <QString>

#include "services/settings_store.h"

namespace tessarondel {

// The user's settings file under the application name "Tessarondel". The file
// holds the proxy password in plain text, so it is kept readable by its owner only.
class QtSettingsStore final : public SettingsStore {
public:
    QtSettingsStore();
    // A store in an explicit file, for tests and for callers that choose the place.
    explicit QtSettingsStore(const QString& fileName);
    ~QtSettingsStore() override;

    std::u16string Read(std::u16string_view section, std::u16string_view key,
                        std::u16string_view fallback) const override;
    void Write(std::u16string_view section, std::u16string_view key, std::u16string_view value) override;

    // Writes pending changes to the file, which ends up with mode 0600.
    void Flush();
    QString FileName() const { return settings_.fileName(); }

private:
    void RestrictToOwner();
    QSettings settings_;
};

}  // namespace tessarondel
