#pragma once

#include <QString>

// A path taken apart into drive, folder, base name and extension. Keeps the
// separators it was given: "/" and "\" both split, neither is rewritten.
class PathParts
{
public:
    PathParts() = default;
    explicit PathParts(const QString &fullPath);

    QString drive() const { return drivePart; }
    QString folder() const { return folderPart; }
    void setFolder(const QString &folder);
    QString baseName() const { return basePart; }
    void setBaseName(const QString &baseName) { basePart = baseName; }
    QString extension() const { return extensionPart; }
    void setExtension(const QString &extension) { extensionPart = extension; }
    // A name without a point (or with only a leading one) keeps the extension.
    void setFileName(const QString &fileName);

    QString fileName() const;
    QString fullPath() const;

    // Number the base name until no file of that name exists: "a(1)",
    // "a(2)"... Return the number used, 0 when the first name was free.
    int makeUnique();
    // The same with "(n)" inserted at position of the base name; a position
    // outside the base name numbers at its end.
    int makeUniqueAt(int position);
    // makeUnique() and leave an empty file under the name, so that a second
    // caller can't take it before the first writes.
    int reserveUnique();

private:
    int numberFrom(int position, bool reserve);

    QString drivePart;
    QString folderPart;
    QString basePart;
    QString extensionPart;
};
