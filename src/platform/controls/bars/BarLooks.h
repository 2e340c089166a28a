// What the views of a bar show of a tool: its texts for the eye and for the ear, its picture, its font.
#pragma once

#include <QFont>
#include <QIcon>
#include <QString>

class QWidget;

namespace orvane
{

class Tool;

QFont barFont();
void applyMenuLooks(QWidget &menu); // of a menu or menu bar: the bars' font, and a highlight on which pictures are seen
QIcon toolIcon(const Tool &tool);   // null where the tool has no picture

// The caption as a button or menu draws it: "&" marks the access key, "&&" stands for one "&", no outer blanks.
QString shownCaption(const Tool &tool);
QString withoutAccessKey(const QString &caption); // of a shown caption; "&&" stays
// The caption as it is read, or else the tool tip.
QString spokenName(const Tool &tool);

} // namespace orvane
