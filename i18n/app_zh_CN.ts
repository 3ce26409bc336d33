<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 Reg. No.: %2</source>
        <translation>%1注册号：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Balance After: %1</source>
        <translation>Balance After: %1</translation>
    </message>
    <message>
        <source>Balance Before: %1</source>
        <translation>Balance Before: %1</translation>
    </message>
    <message>
        <source>Cashier: %1</source>
        <translation>收银员：%1</translation>
    </message>
    <message>
        <source>Cut Mode: %1</source>
        <translation>切纸方式: %1</translation>
    </message>
    <message>
        <source>Date: %1 %2</source>
        <translation>日期：%1 %2</translation>
    </message>
    <message>
        <source>Delivery</source>
        <translation>外卖</translation>
    </message>
    <message>
        <source>Dine In</source>
        <translation>堂食</translation>
    </message>
    <message>
        <source>Dine In | Table %1</source>
        <translation>堂食 | 餐桌 %1</translation>
    </message>
    <message>
        <source>Discount: %1</source>
        <translation>折扣: %1</translation>
    </message>
    <message>
        <source>Discount: -%1</source>
        <translation>折扣: -%1</translation>
    </message>
    <message>
        <source>Full Cut</source>
        <translation>全切</translation>
    </message>
    <message>
        <source>Kitchen Printer</source>
        <translation>厨房打印机</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>不切纸</translation>
    </message>
    <message>
        <source>Order #%1</source>
        <translation>订单 #%1</translation>
    </message>
    <message>
        <source>Order #: %1</source>
        <translation>订单号：%1</translation>
    </message>
    <message>
        <source>Order Type: %1</source>
        <translation>用餐方式：%1</translation>
    </message>
    <message>
        <source>PRINTER TEST</source>
        <translation>打印机测试</translation>
    </message>
    <message>
        <source>Paper Width: %1mm</source>
        <translation>纸张宽度: %1</translation>
    </message>
    <message>
        <source>Partial Cut</source>
        <translation>半切</translation>
    </message>
    <message>
        <source>Points Earned: +%1</source>
        <translation>获得的积分: +%1</translation>
    </message>
    <message>
        <source>Points Redeemed: -%1</source>
        <translation>已兑换积分: -%1</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>打印机: %1</translation>
    </message>
    <message>
        <source>Receipt #: %1</source>
        <translation>收据号：%1</translation>
    </message>
    <message>
        <source>Receipt + Kitchen Printer</source>
        <translation>收据 + 厨房打印机</translation>
    </message>
    <message>
        <source>Receipt Printer</source>
        <translation>收据打印机</translation>
    </message>
    <message>
        <source>Reprint: %1 %2</source>
        <translation>补印时间：%1 %2</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>角色: %1</translation>
    </message>
    <message>
        <source>Sale: %1</source>
        <translation>交易时间：%1</translation>
    </message>
    <message>
        <source>Subtotal: %1</source>
        <translation>小计: %1</translation>
    </message>
    <message>
        <source>Table: %1</source>
        <translation>桌号：%1</translation>
    </message>
    <message>
        <source>Takeaway</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Takeout</source>
        <translation>打包</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>税</translation>
    </message>
    <message>
        <source>Tax (%1 %2%)</source>
        <translation>税（%1 %2%）</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>谢谢！</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>总计: %1</translation>
    </message>
</context>
</TS>
