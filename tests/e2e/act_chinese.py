# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The last act: the store speaks Chinese, on the screens and on paper."""
import pathlib
import re
import xml.etree.ElementTree

from patience import wait_for
from screen import BUTTON, ROW
from store import PASSWORD, PHONE, receipt, row, without_commands

CATALOGUE = pathlib.Path(__file__).resolve().parents[2] / "i18n/app_zh_CN.ts"


def words():
    """The Chinese of each text by its screen and its English."""
    return {(context.findtext("name"), message.findtext("source")): message.findtext("translation")
            for context in xml.etree.ElementTree.parse(CATALOGUE).iter("context")
            for message in context.iter("message")}


class Chinese:
    def __init__(self, tour):
        self.tour = tour
        self.screen = tour.screen
        self.database = tour.database
        self.words = words()

    def steps(self):
        return [
            self.the_store_turns_to_chinese,
            self.the_admin_logs_in_in_chinese,
            self.an_order_is_taken_in_chinese,
            self.the_kitchen_cooks_in_chinese,
            self.the_member_pays_in_chinese,
            self.the_receipt_is_chinese,
            self.the_books_are_chinese,
            self.the_administration_is_chinese,
            self.the_settings_are_chinese,
            self.the_plain_layout_is_chinese_too,
        ]

    def press(self, context, text, **where):
        self.screen.press(self.words[context, text], **where)

    def the_store_turns_to_chinese(self):
        screen = self.screen
        self.tour.open_settings("Region & Formats")
        screen.choose("App Language", "中文 (简体)")
        screen.choose("Currency", "¥ (CNY)")
        screen.press("Save")
        self.database.expect("SELECT locale, currency_code FROM regional_settings", "zh_CN|CNY")
        # The language changes with the next start, not before.
        screen.wait(BUTTON, "Take Order")

    def the_admin_logs_in_in_chinese(self):
        screen = self.screen
        screen.close()
        screen.start(self.tour.output)
        screen.type_into(self.words["Login", "Username"], "alice")
        screen.type_into(self.words["Login", "Password"], PASSWORD)
        screen.picture("chinese-login")
        self.press("Login", "Login")
        screen.wait(BUTTON, "H2")
        screen.rest()
        screen.picture("chinese-plan")

    def an_order_is_taken_in_chinese(self):
        screen = self.screen
        screen.press("H2")
        screen.wait(BUTTON, "新建堂食订单")
        screen.picture("chinese-table")
        self.press("OrderTakingFloorPlan", "Create Reservation")
        screen.rest()
        screen.picture("chinese-booking")
        self.press("OrderTakingFloorPlan", "Cancel")
        screen.rest()
        self.press("OrderTakingFloorPlan", "Create Dine-In Order")
        screen.wait(BUTTON, "下单")
        screen.rest()
        screen.press("Lunch", roles=ROW)
        for item in ("牛肉面", "Espresso"):
            self.press("OrderEditor", "Add", within=screen.row(item))
        screen.says("¥16.30")
        screen.picture("chinese-order")
        self.press("OrderEditor", "Place Order")
        self.database.expect("SELECT order_type, status, total FROM order_sessions WHERE id = 4", "dine_in|open|1764")
        ticket = self.tour.paper.next()
        number = self.database.ask("SELECT display_number FROM orders WHERE order_session_id = 4")
        table = self.database.ask("SELECT id FROM tables WHERE table_name = 'H2'")
        assert ticket.startswith(b"\x1b@\x1ba\x01\x1bE\x01" + f"订单 #{number}".encode()), ticket
        plain = without_commands(ticket).splitlines()
        for line in (f"堂食 | 餐桌 {table}".encode(), row(" 牛肉面 (Large)", "1x"), row(" Espresso", "1x")):
            assert line in plain, (line, plain)

    def the_kitchen_cooks_in_chinese(self):
        screen = self.screen
        self.press("AdminSidebar", "Kitchen")
        screen.wait(BUTTON, "开始制作")
        screen.picture("chinese-kitchen")
        cards = len(screen.all(BUTTON, "开始制作"))
        for before, after in (("开始制作", "制作完成"), ("制作完成", "上菜")):
            for done in range(cards):
                screen.press(before)
                screen.wait(BUTTON, after, index=done)
        screen.picture("chinese-kitchen-ready")
        for left in reversed(range(cards)):
            screen.press("上菜")
            wait_for(lambda: len(screen.all(BUTTON, "上菜")) == left, f"{left} orders left")
        self.database.expect("SELECT DISTINCT status FROM orders", "served")

    def the_member_pays_in_chinese(self):
        screen = self.screen
        points = int(self.database.ask("SELECT total_points FROM memberships"))
        self.press("AdminSidebar", "Checkout")
        screen.press(f"#{self.tour.display_number(4)}", roles=ROW)
        screen.says("总计：¥17.64")
        screen.type_into(self.words["Checkout", "Member Phone (optional)"], PHONE)
        self.press("Checkout", "Check")
        screen.says(f"当前积分：{points}")
        screen.picture("chinese-checkout")
        self.press("Checkout", "Checkout", index=1)
        self.database.expect("SELECT status, points_earned FROM order_sessions WHERE id = 4", "paid|17")
        self.database.expect("SELECT total_points FROM memberships", str(points + 17))

    def the_receipt_is_chinese(self):
        paper = without_commands(self.tour.paper.next()).decode()
        number = self.tour.display_number(4)
        before = self.database.ask("SELECT points_balance_before FROM receipt_snapshot WHERE order_session_id = 4")
        for line in ("Sales Tax注册号：ST-4711", f"收据号：{receipt(3)}", "收银员：alice", f"订单号：{number}",
                     "用餐方式：堂食", "桌号：H2", "小计: 16.30", "税（Sales Tax 8.25%）：1.34", "折扣: 0", "总计: 17.64",
                     f"Balance Before: {before}", "获得的积分: +17", f"Balance After: {int(before) + 17}", "谢谢！"):
            assert line in paper.splitlines(), (line, paper)
        assert re.search(r"^日期：\S+ \d\d:\d\d:\d\d$", paper, re.M), paper
        assert row("1 x 牛肉面 (Large)", "12.80").decode() in paper.splitlines(), paper
        self.tour.paper.expect_nothing_more()
        recent = wait_for(lambda: self.screen.all(ROW, f"#{number}")[-1:], "the paid order")
        self.screen.click(recent[0])
        self.screen.wait(BUTTON, "补印收据")
        self.screen.picture("chinese-reprint")

    def visit(self, context, text, name, index=0):
        """Opens a page of the sidebar and keeps its picture."""
        self.press(context, text, index=index)
        self.screen.rest()
        self.screen.picture(f"chinese-{name}")

    def the_books_are_chinese(self):
        screen = self.screen
        self.visit("AdminSidebar", "Analytics", "dashboard")
        revenue = self.database.ask("SELECT printf('¥%.2f', sum(total) / 100.0) FROM order_sessions")
        screen.says(f"今日营业额 {revenue}")
        self.visit("AdminSidebar", "Tax Reports", "tax-report")
        screen.says(f"总销售额 {revenue} …")

    def the_administration_is_chinese(self):
        screen = self.screen
        self.visit("AdminSidebar", "Management", "menu")
        for text in ("Floor Plan", "Members", "User"):
            self.visit("AdminManagementSidebar", text, text.lower().replace(" ", "-"))
            if text == "Members":
                screen.press(PHONE, roles=ROW)
                screen.says(f"会员电话：{PHONE}")
                screen.picture("chinese-member")
                screen.keys("Escape")
                screen.rest()

    def the_settings_are_chinese(self):
        self.visit("AdminSidebar", "Settings", "settings")
        for text in ("Printer", "Tax", "Membership", "Region & Formats", "Database"):
            self.visit("AdminSettingsSidebar", text, f"settings-{text.split()[0].lower()}")
        self.visit("AdminSettingsSidebar", "Kitchen", "settings-kitchen", index=1)

    def the_plain_layout_is_chinese_too(self):
        screen = self.screen
        self.press("AdminSettingsSidebar", "Tables")
        screen.choose(self.words["AdminTableSettings", "Layout Mode"], "简单布局")
        screen.picture("chinese-settings-tables")
        self.press("AdminTableSettings", "Save")
        self.database.expect("SELECT layout_mode FROM table_settings", "simple")
        self.press("AdminSidebar", "Take Order")
        screen.press("Lunch", roles=ROW)
        self.press("OrderTakingSimple", "Dine In")
        self.press("OrderTakingSimple", "Add", within=screen.row("牛肉面"))
        screen.says("¥12.80")
        screen.picture("chinese-order-plain")
        screen.close()
