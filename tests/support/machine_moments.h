#pragma once

#include <filesystem>

namespace orvelle {

/// Copies the files of `overlay` over the tree `target`, which may be empty. Files of the overlay replace
/// those of the target. Symbolic links are copied as links.
inline void layOver(const std::filesystem::path& target, const std::filesystem::path& overlay) {
    namespace fs = std::filesystem;
    fs::create_directories(target);
    for (const fs::directory_entry& entry : fs::directory_iterator(overlay)) {
        const fs::path copy = target / entry.path().filename();
        if (!entry.is_symlink() && entry.is_directory()) {
            layOver(copy, entry.path());
            continue;
        }
        fs::remove(copy);
        if (entry.is_symlink())
            fs::copy_symlink(entry.path(), copy);
        else
            fs::copy_file(entry.path(), copy);
    }
}

/// Builds the tree of a recorded machine at its second moment: its folder `1`, overlaid with its folder `2`,
/// which holds only the changed files.
inline void assembleSecondMoment(const std::filesystem::path& target, const std::filesystem::path& machine) {
    layOver(target, machine / "1");
    layOver(target, machine / "2");
}

} // namespace orvelle
