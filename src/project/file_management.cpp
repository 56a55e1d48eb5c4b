// SPDX-License-Identifier: MIT
#include "project/file_management.h"

#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <cmath>

namespace FileManagement {

void MakeFullDirectory(const QString& path) { Files::MakeFolder(path); }

QString ShortExtensionOf(const QString& path) { return path.sliced(path.lastIndexOf(u'.') + 1).left(3); }

QString FormatByteCount(double number) {
    constexpr double Step = 1024;
    const double bytes = static_cast<float>(number);
    // To the even neighbour at an exact half.
    const auto format = [bytes](double unit, const QString& name) {
        return Numbers::ForMessage(std::nearbyint(bytes / unit * 100) / 100) + name;
    };
    if (bytes < Step) return format(1, u" B"_s);
    if (bytes < Step * Step) return format(Step, u" kB"_s);
    if (bytes < Step * Step * Step) return format(Step * Step, u" MB"_s);
    if (bytes < Step * Step * Step * Step) return format(Step * Step * Step, u" GB"_s);
    return {};
}

QString FormatFileSize(const QString& path) {
    const auto size = Files::SizeOf(path);
    if (!size) throw RuntimeError("the size of the file cannot be read");
    return FormatByteCount(static_cast<double>(*size));
}

} // namespace FileManagement
