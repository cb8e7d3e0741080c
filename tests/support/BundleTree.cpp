#include "support/BundleTree.h"

#include <QFile>

#include <filesystem>

namespace fs = std::filesystem;

namespace {
fs::path nativePath(const QString &path)
{
    return QFile::encodeName(path).constData();
}

// QFile::copy() would wait for the disk with each file.
bool copyFile(const fs::path &from, const fs::path &to)
{
    std::error_code error;
    if (from.extension() == ".png") {
        fs::create_hard_link(from, to, error);
        if (!error) {
            return true;
        }
    }
    return fs::copy_file(from, to, error);
}
} // namespace

bool BundleTree::copy(const QString &from, const QString &to)
{
    const fs::path source = nativePath(from);
    const fs::path target = nativePath(to);
    std::error_code error;
    fs::create_directories(target, error);
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(source, error)) {
        const fs::path copied = target / entry.path().lexically_relative(source);
        if (entry.is_directory() ? !fs::create_directory(copied, error)
                                 : !copyFile(entry.path(), copied)) {
            return false;
        }
    }
    return !error;
}

bool BundleTree::separate(const QString &file)
{
    const fs::path shared = nativePath(file);
    const fs::path own = nativePath(file + QStringLiteral(".own"));
    std::error_code error;
    fs::copy_file(shared, own, error);
    if (!error) {
        fs::rename(own, shared, error);
    }
    return !error;
}
