"""What check_translations.py finds, and what it passes over."""

import unittest

from check_translations import differences, fault_of


class Translations(unittest.TestCase):
    def test_translationOfAMessageFits(self):
        self.assertEqual(fault_of("Wrote %1 of %2", "已写出 %2 的 %1"), "")

    def test_messageWithoutATranslationIsTold(self):
        self.assertEqual(fault_of("Wrote %1", ""), "has no translation")

    def test_messageThatIsLeftAsItIsIsTold(self):
        self.assertEqual(fault_of("Wrote %1", "Wrote %1"), "is not translated")

    def test_messageOfNamesAndSignsMayStayAsItIs(self):
        self.assertEqual(fault_of('%1: "beams" (--strict, JSON)', '%1: "beams" (--strict, JSON)'), "")

    def test_messageOfPlacesMayDoWithoutItsShortWords(self):
        self.assertEqual(fault_of("%1 of %2", "%2, %1"), "")

    def test_eachPlaceStandsInTheTranslationAsOftenAsInTheMessage(self):
        fault = "has other places than its translation"
        self.assertEqual(fault_of("%1 of %2", "%1 个"), fault)
        self.assertEqual(fault_of("%1", "%1 和 %1"), fault)
        self.assertEqual(fault_of("a file", "%1 文件"), fault)

    def test_blanksAroundAMessageStandAroundItsTranslation(self):
        fault = "has other blanks or line breaks around it than its translation"
        self.assertEqual(fault_of("left out: ", "略去:"), fault)
        self.assertEqual(fault_of("\nNothing was saved.", "未保存。"), fault)
        self.assertEqual(fault_of("one\ntwo", "一二"), fault)

    def test_newMessageIsMissingAndAnOldOneSaidNowhere(self):
        self.assertEqual(differences({("orvcad", "old")}, {("orvcad", "new")}),
                         ['orvcad: "new" is missing in src/cli/translations/orvcad_zh.ts',
                          'orvcad: "old" of src/cli/translations/orvcad_zh.ts is said nowhere'])


if __name__ == "__main__":
    unittest.main()
