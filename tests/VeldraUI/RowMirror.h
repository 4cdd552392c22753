// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QStringList>

namespace torvi {

/// A view without a screen: it follows a list model by what the model tells, never by looking
/// again, and notes each message, as in "remove 3-5", "move 7 to 0", "insert 2", "change 4-4".
class RowMirror final : public QObject
{
public:
    RowMirror(QAbstractItemModel &model, int role)
        : m_model(model)
        , m_tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
        , m_role(role)
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            rows.append(textAt(row));
        }
        connect(&model, &QAbstractItemModel::rowsRemoved, this, &RowMirror::remove);
        connect(&model, &QAbstractItemModel::rowsMoved, this, &RowMirror::move);
        connect(&model, &QAbstractItemModel::rowsInserted, this, &RowMirror::insert);
        connect(&model, &QAbstractItemModel::dataChanged, this, &RowMirror::change);
        connect(&model, &QAbstractItemModel::modelReset, this,
                [this] { messages.append(QStringLiteral("reset")); });
        connect(&model, &QAbstractItemModel::layoutChanged, this,
                [this] { messages.append(QStringLiteral("layout")); });
    }

    QStringList rows; ///< as the messages have it
    QStringList messages;

    /// As the model has it.
    [[nodiscard]] QStringList modelRows() const
    {
        QStringList texts;
        for (int row = 0; row < m_model.rowCount(); ++row) {
            texts.append(textAt(row));
        }
        return texts;
    }

private:
    void remove(const QModelIndex &, int first, int last)
    {
        rows.remove(first, last - first + 1);
        note("remove", first, last);
    }

    void move(const QModelIndex &, int first, int last, const QModelIndex &, int before)
    {
        const int to = before > first ? before - (last - first + 1) : before;
        rows.move(first, to);
        messages.append(QStringLiteral("move %1 to %2").arg(first).arg(to));
    }

    void insert(const QModelIndex &, int first, int last)
    {
        for (int row = first; row <= last; ++row) {
            rows.insert(row, textAt(row));
        }
        note("insert", first, last);
    }

    void change(const QModelIndex &first, const QModelIndex &last, const QList<int> &roles)
    {
        if (!roles.isEmpty() && !roles.contains(m_role)) {
            return;
        }
        for (int row = first.row(); row <= last.row(); ++row) {
            rows[row] = textAt(row);
        }
        note("change", first.row(), last.row());
    }

    void note(const char *what, int first, int last)
    {
        const QString range
            = first == last ? QString::number(first) : QStringLiteral("%1-%2").arg(first).arg(last);
        messages.append(QString::fromLatin1(what) + u' ' + range);
    }

    [[nodiscard]] QString textAt(int row) const
    {
        return m_model.index(row, 0).data(m_role).toString();
    }

    const QAbstractItemModel &m_model;
    QAbstractItemModelTester m_tester;
    int m_role;
};

} // namespace torvi
