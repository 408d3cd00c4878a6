#pragma once

#include "Foundation/EnumTable.h"

#include <QObject>
#include <QUuid>

#include <optional>

/// A place in the window: one of the modules, the settings, or one record opened on its own.
struct Destination {
    Q_GADGET
    Q_PROPERTY(QString kindText READ kindText FINAL)
    Q_PROPERTY(QUuid id MEMBER id FINAL)
    Q_PROPERTY(QString text READ text FINAL)

public:
    enum class Kind {
        page,
        project,
        codeDocument,
        deck,
        dashboard,
        today,
        focus,
        tasks,
        calendar,
        projects,
        notes,
        databases,
        code,
        decks,
        habits,
        insights,
        relax,
        reader,
        settings
    };

    Kind kind = Kind::dashboard;
    /// The record shown; null for the places that show none.
    QUuid id = {};

    /// A place that shows no single record.
    static Destination to(Kind kind) { return {kind, {}}; }
    static Destination page(const QUuid &id) { return {Kind::page, id}; }
    static Destination project(const QUuid &id) { return {Kind::project, id}; }
    static Destination codeDocument(const QUuid &id) { return {Kind::codeDocument, id}; }
    static Destination deck(const QUuid &id) { return {Kind::deck, id}; }

    static bool showsRecord(Kind kind) { return kind <= Kind::deck; }

    bool operator==(const Destination &) const = default;

    /// The kind's name, such as "dashboard" or "page".
    QString kindText() const;
    /// A name that stays the same from version to version: the kind's name, followed for a record by a slash
    /// and its upper-case id.
    QString text() const;
    /// The destination with this `text()`.
    static std::optional<Destination> fromText(const QString &text);
};

template <>
struct EnumTable<Destination::Kind> {
    static constexpr auto cases = std::to_array<EnumCase<Destination::Kind>>({
        {Destination::Kind::page, "page"},
        {Destination::Kind::project, "project"},
        {Destination::Kind::codeDocument, "codeDocument"},
        {Destination::Kind::deck, "deck"},
        {Destination::Kind::dashboard, "dashboard"},
        {Destination::Kind::today, "today"},
        {Destination::Kind::focus, "focus"},
        {Destination::Kind::tasks, "tasks"},
        {Destination::Kind::calendar, "calendar"},
        {Destination::Kind::projects, "projects"},
        {Destination::Kind::notes, "notes"},
        {Destination::Kind::databases, "databases"},
        {Destination::Kind::code, "code"},
        {Destination::Kind::decks, "decks"},
        {Destination::Kind::habits, "habits"},
        {Destination::Kind::insights, "insights"},
        {Destination::Kind::relax, "relax"},
        {Destination::Kind::reader, "reader"},
        {Destination::Kind::settings, "settings"},
    });
};
