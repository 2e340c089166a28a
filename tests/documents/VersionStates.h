// The states of a window with versions, as far as it shows them, and what brings it from one to another.
#pragma once

#include "documents/VersionedFixture.h"

namespace orvane::test
{

struct VersionState {
    int ownMode = 0;
    short dirty = 0;
    bool locked = true;
    bool editing = false;
    QList<bool> fields{false, false, false};
    QString caption = QStringLiteral(" Go to Own ");
    bool save = false;

    bool operator==(const VersionState &) const = default;
};

inline const VersionState MasterClean;
inline const VersionState OwnClean{-1, 0, false, true, {true, true, true}, QStringLiteral("Go to Master"), false};
inline const VersionState OwnDirty{-1, -1, false, true, {true, true, true}, QStringLiteral("Go to Master"), true};
// Where Save doesn't follow Dirty: the manual, once the page was changed.
inline const VersionState OwnDirtyUnsaveable{-1,   -1, false, true, {true, true, true}, QStringLiteral("Go to Master"),
                                             false};

inline VersionState stateOf(const VersionedSystem &open)
{
    const VersionedWindow &window = *open.window;
    return {window.OwnMode,       window.Dirty.value(),  window.rtfData.Locked(), window.rtfData.EditingEnabled(),
            open.fieldsEnabled(), open.mode().Caption(), open.saveEnabled()};
}

// What is typed where a test makes an Own version dirty.
inline QStringList typedFields()
{
    return {QStringLiteral("2b"), QStringLiteral("soon"), QStringLiteral("M Serrano")};
}

inline void typeEverywhere(const VersionedSystem &open)
{
    open.type(open.window->txtIssue, typedFields()[0]);
    open.type(open.window->txtDate, typedFields()[1]);
    open.type(open.window->txtAuthorized, typedFields()[2]);
    open.typeInPage(QStringLiteral("typed"));
}

} // namespace orvane::test

Q_DECLARE_METATYPE(orvane::test::VersionState)
