// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/ChineseLabels.h"

#include <QCoreApplication>
#include <QHash>

namespace {
const QHash<QByteArray, QByteArray> labels = {
    {"%1 Reg. No.: %2", "%1注册号：%2"},
    {"%1: %2", "%1：%2"},
    {"Balance After: %1", "Balance After: %1"},
    {"Balance Before: %1", "Balance Before: %1"},
    {"Cashier: %1", "收银员：%1"},
    {"Cut Mode: %1", "切纸方式: %1"},
    {"Date: %1 %2", "日期：%1 %2"},
    {"Delivery", "外卖"},
    {"Dine In", "堂食"},
    {"Dine In | Table %1", "堂食 | 餐桌 %1"},
    {"Discount: %1", "折扣: %1"},
    {"Discount: -%1", "折扣: -%1"},
    {"Full Cut", "全切"},
    {"Kitchen Printer", "厨房打印机"},
    {"No Cut", "不切纸"},
    {"Order #%1", "订单 #%1"},
    {"Order #: %1", "订单号：%1"},
    {"Order Type: %1", "用餐方式：%1"},
    {"PRINTER TEST", "打印机测试"},
    {"Paper Width: %1mm", "纸张宽度: %1"},
    {"Partial Cut", "半切"},
    {"Points Earned: +%1", "获得的积分: +%1"},
    {"Points Redeemed: -%1", "已兑换积分: -%1"},
    {"Printer: %1", "打印机: %1"},
    {"Receipt #: %1", "收据号：%1"},
    {"Receipt + Kitchen Printer", "收据 + 厨房打印机"},
    {"Receipt Printer", "收据打印机"},
    {"Reprint: %1 %2", "补印时间：%1 %2"},
    {"Role: %1", "角色: %1"},
    {"Sale: %1", "交易时间：%1"},
    {"Subtotal: %1", "小计: %1"},
    {"Table: %1", "桌号：%1"},
    {"Takeaway", "打包"},
    {"Takeout", "打包"},
    {"Tax", "税"},
    {"Tax (%1 %2%)", "税（%1 %2%）"},
    {"Thank you!", "谢谢！"},
    {"Total: %1", "总计: %1"},
};
} // namespace

ChineseLabels::ChineseLabels()
{
    QCoreApplication::installTranslator(this);
}

ChineseLabels::~ChineseLabels()
{
    QCoreApplication::removeTranslator(this);
}

QString ChineseLabels::translate(const char *context, const char *sourceText,
                                 const char * /*disambiguation*/, int /*n*/) const
{
    return qstrcmp(context, "QObject") == 0 ? QString::fromUtf8(labels.value(sourceText))
                                            : QString();
}

bool ChineseLabels::isEmpty() const
{
    return false;
}
