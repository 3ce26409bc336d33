// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "models/CategoryModel.h"
#include "models/MenuItemModel.h"

#include <QObject>
#include <QString>

class CategoryRepository;
class MenuRepository;

/// Keeps the menu: categories and the items in them. Every operation's false means that the input
/// was refused, with a line in the log; a write that the database refuses is still a true.
class MenuService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CategoryModel *categoryModel READ categoryModel CONSTANT)
    Q_PROPERTY(MenuItemModel *menuItemModel READ menuItemModel NOTIFY menuItemsChanged)
    Q_PROPERTY(int currentCategoryId READ currentCategoryId WRITE setCurrentCategoryId NOTIFY
                   currentCategoryIdChanged)

public:
    MenuService(MenuRepository *menu, CategoryRepository *categories, QObject *parent = nullptr);

    [[nodiscard]] CategoryModel *categoryModel() const { return m_categoryModel; }
    [[nodiscard]] MenuItemModel *menuItemModel() const { return m_menuItemModel; }
    /// -1 while none is selected.
    [[nodiscard]] int currentCategoryId() const { return m_currentCategoryId; }

    /// Names are checked trimmed and stored as given: trimming is the screen's task.
    Q_INVOKABLE bool addCategory(const QString &categoryName);
    Q_INVOKABLE bool renameCategory(int categoryId, const QString &newName);
    /// The selection falls back to -1 even where the database refuses the removal.
    Q_INVOKABLE bool removeCategory(int categoryId);

    /// `price` is in currency units; cents are rounded half away from zero.
    Q_INVOKABLE bool addMenuItem(const QString &itemName, int categoryId, double price,
                                 bool isAvailable, bool isTaxable,
                                 const QString &portionSize = QString());
    /// `price` is in currency units; cents are rounded half away from zero.
    Q_INVOKABLE bool editMenuItem(int menuItemId, const QString &itemName, int categoryId,
                                  double price, bool isAvailable, bool isTaxable,
                                  const QString &portionSize = QString());
    /// An item that an order names stays, with a line in the log.
    Q_INVOKABLE bool removeMenuItem(int menuItemId);

public slots:
    void setCurrentCategoryId(int categoryId);

signals:
    void menuItemsChanged();
    void currentCategoryIdChanged();

private:
    [[nodiscard]] bool categoryExists(int categoryId) const;

    MenuRepository *m_menu;
    CategoryRepository *m_categories;
    CategoryModel *m_categoryModel;
    MenuItemModel *m_menuItemModel;
    int m_currentCategoryId = -1;
};
