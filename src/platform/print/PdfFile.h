// A PDF file that comes into being whole: it is written under another name beside its place, and moves there when it
// is done. What isn't kept leaves nothing behind.
#pragma once

#include <QString>
#include <memory>

namespace orvane
{

class PdfFile
{
public:
    // A file that the user chose replaces the one of its name.
    static std::unique_ptr<PdfFile> chosen(const QString &fileName);
    // A file named after the document, in a folder where none of that name is: "Title.pdf", or else "Title (2).pdf".
    static std::unique_ptr<PdfFile> named(const QString &folder, const QString &title);

    ~PdfFile();
    PdfFile(const PdfFile &) = delete;
    PdfFile &operator=(const PdfFile &) = delete;

    const QString &workingName() const { return m_workingName; }
    void keep(); // error 482 where the file isn't whole, or can't move to its place

private:
    PdfFile(const QString &folder, const QString &baseName, bool replaces);

    bool moveToPlace() const;
    bool moveToFreePlace() const;

    QString m_folder;
    QString m_baseName;
    bool m_replaces;
    QString m_workingName;
};

} // namespace orvane
