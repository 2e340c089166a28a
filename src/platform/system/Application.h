// What the program knows of itself.
#pragma once

#include <QString>

namespace orvane
{

class Application
{
public:
    int Major() const; // of the version
    int Minor() const;
    QString Title() const { return QStringLiteral("orvane Quillmark CD"); }
    QString Path() const; // the program's folder, without a separator at its end
    const QString &HelpFile() const { return m_helpFile; }
    void setHelpFile(const QString &fileName) { m_helpFile = fileName; }

    // The path of a file that lies beside the program.
    QString fileBeside(const QString &name) const;

private:
    QString m_helpFile;
};

Application &App();

} // namespace orvane
