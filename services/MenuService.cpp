// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/MenuService.h"

#include "core/Arithmetic.h"
#include "core/Logging.h"
#include "repositories/CategoryRepository.h"
#include "repositories/MenuRepository.h"

namespace {
bool isBlank(const QString &text)
{
    return text.trimmed().isEmpty();
}

/// Half cents round away from zero: 12.345 is 1235.
int centsOf(double price)
{
    const double cents = 100.0 * price;
    return Arithmetic::truncate<int>(cents + (cents >= 0.0 ? 0.5 : -0.5));
}

QString orEmpty(const QString &portion)
{
    return portion.isNull() ? QStringLiteral("") : portion;
}
} // namespace

MenuService::MenuService(MenuRepository *menu, CategoryRepository *categories, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
    , m_categories(categories)
    , m_categoryModel(new CategoryModel(categories, this))
    , m_menuItemModel(new MenuItemModel(menu, this))
{}

bool MenuService::addCategory(const QString &categoryName)
{
    if (isBlank(categoryName)) {
        qCWarning(lcMenu) << "Cannot add empty category name";
        return false;
    }
    Category category;
    category.category = categoryName;
    m_categories->create(category);
    m_categoryModel->reload();
    return true;
}

bool MenuService::renameCategory(int categoryId, const QString &newName)
{
    if (isBlank(newName)) {
        qCWarning(lcMenu) << "Cannot rename category to empty name";
        return false;
    }
    if (!categoryExists(categoryId)) {
        return false;
    }
    m_categories->update({categoryId, newName});
    m_categoryModel->reload();
    return true;
}

bool MenuService::removeCategory(int categoryId)
{
    if (!categoryExists(categoryId)) {
        return false;
    }
    m_categories->remove(categoryId);
    m_categoryModel->reload();
    m_menuItemModel->reload(m_currentCategoryId);
    if (categoryId == m_currentCategoryId && categoryId != -1) {
        setCurrentCategoryId(-1);
    }
    return true;
}

bool MenuService::addMenuItem(const QString &itemName, int categoryId, double price,
                              bool isAvailable, bool isTaxable, const QString &portionSize)
{
    if (isBlank(itemName)) {
        qCWarning(lcMenu) << "Item name cannot be empty";
        return false;
    }
    if (!categoryExists(categoryId)) {
        return false;
    }
    m_menu->create(
        {-1, itemName, categoryId, centsOf(price), orEmpty(portionSize), isAvailable, isTaxable});
    if (categoryId == m_currentCategoryId) {
        m_menuItemModel->reload(categoryId);
    }
    return true;
}

bool MenuService::editMenuItem(int menuItemId, const QString &itemName, int categoryId,
                               double price, bool isAvailable, bool isTaxable,
                               const QString &portionSize)
{
    if (!m_menu->getMenuItemById(menuItemId)) {
        qCWarning(lcMenu) << "Menu item with ID" << menuItemId << "not found";
        return false;
    }
    if (isBlank(itemName)) {
        qCWarning(lcMenu) << "Item name cannot be empty";
        return false;
    }
    if (!categoryExists(categoryId)) {
        return false;
    }
    m_menu->update({menuItemId, itemName, categoryId, centsOf(price), orEmpty(portionSize),
                    isAvailable, isTaxable});
    m_menuItemModel->reload(m_currentCategoryId);
    emit menuItemsChanged();
    return true;
}

bool MenuService::removeMenuItem(int menuItemId)
{
    if (!m_menu->getMenuItemById(menuItemId)) {
        qCWarning(lcMenu) << "Menu item with ID" << menuItemId << "not found";
        return false;
    }
    m_menu->remove(menuItemId);
    m_menuItemModel->reload(m_currentCategoryId);
    return true;
}

void MenuService::setCurrentCategoryId(int categoryId)
{
    if (categoryId == m_currentCategoryId) {
        return;
    }
    m_currentCategoryId = categoryId;
    emit currentCategoryIdChanged();
    m_menuItemModel->setCategoryId(categoryId);
    emit menuItemsChanged();
}

bool MenuService::categoryExists(int categoryId) const
{
    if (m_categories->getCategoryById(categoryId)) {
        return true;
    }
    qCWarning(lcMenu) << "Category with ID" << categoryId << "not found";
    return false;
}
