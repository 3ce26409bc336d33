#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What lrelease accepts in silence, checked in the catalogue's source.

    check_catalogue.py RULE [CATALOGUE]

One rule a run, so that each is a test of its own; the names are those of RULES below. Prints every
message that breaks the rule and ends with 1 where there is one.
"""
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
CATALOGUE = ROOT / "i18n" / "app_zh_CN.ts"
PAPER = "QObject"  # the context of all that is printed
GONE = "SetupDBLocation"  # a screen that is no more, whose texts are kept
# What several screens say beyond their own texts.
OWN = {"Hints", "FieldMenu"}

SHARED_PARTS = {"ConfirmationDialog", "FloorCanvas"}
SCREENS = {
    "AdminAnalytics", "AdminDatabaseSettings", "AdminFloorPlanManagement", "AdminKitchenSettings",
    "AdminManagementSidebar", "AdminMembersManagement", "AdminMembershipSettings",
    "AdminMenuManagement", "AdminPrinterSettings", "AdminRegionalSettings", "AdminSettingsSidebar",
    "AdminSidebar", "AdminStoreSettings", "AdminTableManagement", "AdminTableSettings",
    "AdminTaxReports", "AdminTaxSettings", "AdminUserManagement", "Checkout", "KitchenOrders",
    "Login", "OrderEditor", "OrderTakingFloorPlan", "OrderTakingSimple", "ServiceStaffSidebar",
    "SetupAdmin", "SetupBetaWelcome", "SetupDBChoice", "SetupDBCreation", "SetupDBOpen"}

# The same in both languages.
SAME = {"you@example.com"}
# English words that stand for two things, so that they have two translations.
TWO_THINGS = {
    "Receipt",  # the slip; its number, as the head of a column
    "Table",  # the thing; its name, as the head of a column
    "Transactions",  # sales; movements of a member's points
    "Type",  # how the guests dine; earned or redeemed
}


class Message:
    """One entry: its context, both texts, and the mark that lupdate put on it ("" when done)."""

    def __init__(self, context, element):
        self.context = context
        self.source = element.findtext("source")
        translation = element.find("translation")
        self.text = translation.text or ""
        self.mark = translation.get("type", "")

    def __str__(self):
        return f"{self.context}: {self.source!r} -> {self.text!r} {self.mark}".rstrip()


def messages_of(path):
    return [Message(context.findtext("name"), element)
            for context in ElementTree.parse(path).getroot().findall("context")
            for element in context.findall("message")]


def finished(path):
    """Every message is translated, and none is kept that no source holds any more."""
    return (message for message in messages_of(path) if message.mark or not message.text.strip())


def placeholders(path):
    """A translation has the placeholders of its source, each as often."""
    def found(text):
        return sorted(re.findall(r"%(?:L?\d+|n)", text))
    return (message for message in messages_of(path) if found(message.source) != found(message.text))


def complete(path):
    """The catalogue holds the texts of the sources, no fewer and no more."""
    with tempfile.TemporaryDirectory() as folder:
        fresh = shutil.copy(path, folder)
        subprocess.run([ROOT / "scripts" / "update-translations", fresh], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wanted = {(message.context, message.source) for message in messages_of(fresh)}
    held = {(message.context, message.source) for message in messages_of(path)}
    for context, source in sorted(wanted ^ held):
        yield f"{context}: {source!r} {'has no entry' if (context, source) in wanted else 'is in no source'}"


def contexts(path):
    """Texts are looked up by the names of the screens, never by those of the pieces they are made of."""
    named = {message.context for message in messages_of(path)}
    expected = SCREENS | SHARED_PARTS | OWN | {PAPER, GONE}
    yield from (f"{name}: is no screen's context" for name in sorted(named - expected))
    yield from (f"{name}: has no message" for name in sorted(expected - named))
    documents = {document.stem for document in (ROOT / "qml").rglob("*.qml")}
    yield from (f"{name}: has no document" for name in sorted((SCREENS | SHARED_PARTS) - documents))


def printed_labels(path):
    """What is printed on tickets and receipts is settled to the letter."""
    labels = json.loads((pathlib.Path(__file__).parent / "printed_labels.json").read_text(encoding="utf-8"))
    held = {message.source: message.text for message in messages_of(path) if message.context == PAPER}
    for source in sorted(labels.keys() | held.keys()):
        if labels.get(source) != held.get(source):
            yield f"{source!r}: {held.get(source)!r} instead of {labels.get(source)!r}"


def chinese(path):
    """Screens speak Chinese, with the punctuation of Chinese and short of no word."""
    for message in screen_messages(path):
        if message.source in SAME:
            if message.text != message.source:
                yield message
        elif not re.search(r"[\u4e00-\u9fff]", message.text):
            yield message
        elif re.search(r"[\u4e00-\u9fff][,.:;?!()\"']|[,;?!][\u4e00-\u9fff]", message.text):
            yield message


def one_word(path):
    """One source text has one translation, on whatever screen it stands."""
    texts = {}
    for message in screen_messages(path):
        texts.setdefault(message.source, set()).add(message.text)
    for source, translations in sorted(texts.items()):
        if (len(translations) > 1) != (source in TWO_THINGS):
            yield f"{source!r}: {sorted(translations)}"


def continued(path):
    """Where a value follows or precedes at once, so it does in Chinese: no sign and no blank is lost."""
    for message in screen_messages(path):
        if message.source.endswith((": ", ":")):
            kept = message.text.endswith("：")
        else:
            tail = re.search(r"[ +#-]*$", message.source)[0].lstrip(" ")
            kept = message.text.endswith(tail) and message.source.endswith(" ") == message.text.endswith(" ")
        if not kept or message.source.startswith(" ") != message.text.startswith(" "):
            yield message


def screen_messages(path):
    return [message for message in messages_of(path) if message.context != PAPER]


RULES = {rule.__name__: rule for rule in (
    finished, placeholders, complete, contexts, printed_labels, chinese, one_word, continued)}


def main(arguments):
    if not arguments or arguments[0] not in RULES:
        sys.exit(f"{__doc__}\nRules: {' '.join(RULES)}")
    rule = RULES[arguments[0]]
    faults = list(rule(pathlib.Path(arguments[1]) if len(arguments) > 1 else CATALOGUE))
    for fault in faults:
        print(fault)
    if faults:
        sys.exit(f"{len(faults)} against: {rule.__doc__}")


if __name__ == "__main__":
    main(sys.argv[1:])
