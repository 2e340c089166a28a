// The page that shows a walk step by step, with the pictures and documents that lie beside it. It prints as a hand-out:
// no step is torn apart.
#pragma once

#include <QDir>
#include <QPixmap>
#include <QStringList>
#include <vector>

namespace orvane::walk
{

struct Entry {
    QString name;    // of the picture's file, without number and ending
    QString heading; // plain
    QString body;    // HTML
    QString next;    // the scripts; empty where the entry is no step
    QString back;
    QString seen; // what the picture shows, for whoever can't see it
};

class HandOut
{
public:
    explicit HandOut(const QDir &folder) : m_folder(folder) {}

    // A file that can't be written is a complaint of the entry.
    void add(const Entry &entry, const QPixmap &picture);
    void addDocument(const QString &fileName, const QString &title);
    void complain(const QString &complaint); // about the last entry; written to the standard error output too
    bool write();                            // index.html

    int pictures() const { return static_cast<int>(m_pages.size()); }
    int documents() const { return static_cast<int>(m_documents.size()); }
    int complaints() const { return m_complaints; }

private:
    struct Page {
        Entry entry;
        QString file;
        QStringList complaints;
    };

    QString html() const;
    QString html(const Page &page) const;

    QDir m_folder;
    std::vector<Page> m_pages;
    QStringList m_documents; // lines of HTML
    int m_complaints = 0;
};

} // namespace orvane::walk
