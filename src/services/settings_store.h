#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessarondel {

// The per-user store of text settings, addressed by section and key under the
// application's name. A missing key reads as the fallback the caller gives.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::u16string Read(std::u16string_view section, std::u16string_view key,
                                std::u16string_view fallback) const = 0;
    virtual void Write(std::u16string_view section, std::u16string_view key, std::u16string_view value) = 0;
};

// Keeps the settings in memory; what tests use in place of the user's file.
class MemorySettingsStore final : public SettingsStore {
public:
    std::u16string Read(std::u16string_view section, std::u16string_view key,
                        std::u16string_view fallback) const override;
    void Write(std::u16string_view section, std::u16string_view key, std::u16string_view value) override;

    bool Contains(std::u16string_view section, std::u16string_view key) const;
    // Every write in order, "section/key=value", so tests can check the order of writing.
    const std::vector<std::u16string>& WriteLog() const { return writeLog_; }

private:
    std::map<std::pair<std::u16string, std::u16string>, std::u16string> values_;
    std::vector<std::u16string> writeLog_;
};

}  // namespace tessarondel
