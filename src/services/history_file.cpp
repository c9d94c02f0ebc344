#include "services/history_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "customfunctions/function_folder.h"

namespace tessarondel {
namespace {

QString FileName(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

void MoveAside(const QString& fileName) {
    const QString aside = fileName + QStringLiteral(".bad");
    QFile::remove(aside);
    QFile::rename(fileName, aside);
}

}  // namespace

std::filesystem::path HistoryFile::DefaultPath() {
    return std::filesystem::path(UserStateHome()) / "Tessarondel" / "history";
}

SessionHistory HistoryFile::Load() const {
    QFile file(FileName(path_));
    if (!file.exists() || file.size() == 0) return {};
    if (file.size() <= static_cast<qint64>(kSessionHistoryMaxBytes) && file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        file.close();
        auto history = ParseSessionHistory(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        if (history) return std::move(*history);
    }
    MoveAside(file.fileName());
    return {};
}

bool HistoryFile::Save(const SessionHistory& history) const {
    const std::string text = FormatSessionHistory(history);
    QSaveFile file(FileName(path_));
    if (!QDir().mkpath(QFileInfo(file.fileName()).absolutePath()) || !file.open(QIODevice::WriteOnly)) return false;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);  // the new file, before anything is in it
    file.write(text.data(), static_cast<qint64>(text.size()));
    return file.commit();
}

void HistoryFile::Remove() const { QFile::remove(FileName(path_)); }

}  // namespace tessarondel
