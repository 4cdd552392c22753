// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#pragma once

#include "VeldraUI/ProjectAccountsModel.h"

namespace torvi {

/// The service accounts saved for one project, in the order in which they were saved.
class SavedAccountListModel : public ProjectAccountsModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        EmailRole = Qt::UserRole,
        TitleRole, ///< the display name when there is one, else the e-mail
    };

    using ProjectAccountsModel::ProjectAccountsModel;

    [[nodiscard]] int count() const;

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    void update() override;
};

} // namespace torvi
