"""Reads the table view as Outlook's view format has it."""

import os
import pathlib
import unittest
import xml.etree.ElementTree

import product_words

SHARE = pathlib.Path(os.environ["TEMPODIAL_SHARE_DIR"])
USER_PROPERTY = "http://schemas.microsoft.com/mapi/string/{00020329-0000-0000-C000-000000000046}/"


class WorkLogViewTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.view = xml.etree.ElementTree.parse(SHARE / "WorkLogCategoryView.xml").getroot()

    def test_Root_IsATable(self):
        self.assertEqual((self.view.tag, self.view.get("type")), ("view", "table"))

    def test_Name_IsTheOneUnderWhichTheProgramAddsIt(self):
        self.assertEqual(self.view.findtext("viewname"), product_words.Word("mTableViewName"))

    def test_FirstColumn_IsTheItemItself(self):
        first = self.view.find("column")
        self.assertEqual([first.findtext(tag) for tag in ("name", "prop", "checkbox")], ["HREF", "DAV:href", "1"])

    def test_Columns_ShowTheUserProperties(self):
        types = {column.findtext("prop"): column.findtext("type") for column in self.view.findall("column")[1:]}
        shown = {prop[len(USER_PROPERTY):]: kind for prop, kind in types.items() if prop.startswith(USER_PROPERTY)}
        self.assertEqual(shown, {
            "Day": "datetime",
            "StartTime": "string",
            "Project": "string",
            "Type": "string",
            "Description": "string",
            "People": "string",
            "Keyword": "string",
            "ApplyPast": "boolean",
        })
        self.assertEqual(set(types.values()), {"datetime", "string", "i4", "boolean"})
        for column in self.view.findall("column")[1:]:
            self.assertTrue(column.findtext("heading"))
            self.assertGreater(int(column.findtext("width")), 0)

    def test_Order_HasTheNewestFirst(self):
        order = self.view.find("orderby/order")
        self.assertEqual(order.findtext("prop"), "urn:schemas:calendar:dtstart")
        self.assertEqual(order.findtext("sort"), "desc")
        self.assertEqual(self.view.findtext("groupby/order/prop"), USER_PROPERTY + "Project")


if __name__ == "__main__":
    unittest.main()
