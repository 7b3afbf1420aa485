#include "tree_folder.h"

#include "support/machine_moments.h"

#include <QDir>
#include <QFileInfo>

#include <fstream>
#include <iterator>

namespace orvelle::soak {
namespace {

namespace fs = std::filesystem;

QString folderTemplate() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
           QStringLiteral("/orvelle-cycles-XXXXXX");
}

} // namespace

TreeFolder::TreeFolder(const fs::path& original)
    : m_folder(folderTemplate())
    , m_root(m_folder.path().toStdString()) {
    layOver(m_root, original);
}

void TreeFolder::write(const fs::path& path, std::string_view text) const {
    std::ofstream file(m_root / path, std::ios::binary | std::ios::trunc);
    if (!file) {
        fs::create_directories((m_root / path).parent_path());
        file.open(m_root / path, std::ios::binary | std::ios::trunc);
    }
    file << text;
    if (!file.flush())
        throw std::runtime_error("cannot write " + (m_root / path).string());
}

void TreeFolder::remove(const fs::path& path) const {
    const fs::path whole = m_root / path;
    if (fs::is_directory(fs::symlink_status(whole))) {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(whole)) {
            if (entry.is_regular_file() && !entry.is_symlink())
                fs::resize_file(entry.path(), 0);
        }
    }
    fs::remove_all(whole);
}

std::string TreeFolder::read(const fs::path& path) const {
    std::ifstream file(m_root / path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::map<std::string, std::string> TreeFolder::filesEndingIn(std::string_view ending,
                                                             const fs::path& folder) const {
    std::map<std::string, std::string> files;
    if (!fs::exists(m_root / folder))
        return files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_root / folder)) {
        if (entry.is_symlink() || !entry.is_regular_file() || !entry.path().native().ends_with(ending))
            continue;
        const std::string path = entry.path().lexically_relative(m_root).string();
        files[path] = read(path);
    }
    return files;
}

} // namespace orvelle::soak
