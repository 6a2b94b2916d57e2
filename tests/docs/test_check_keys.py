"""What check_keys.py finds, and what it passes over."""

import unittest

from check_keys import is_explained, keys_of, unexplained


class Keys(unittest.TestCase):
    def test_propertiesOfASchemaAreFoundAtEveryDepth(self):
        schema = ('{"properties": {"a": {"items": {"properties": {"b": {}}}}},'
                  ' "$defs": {"part": {"properties": {"c": true}}}}')
        self.assertEqual(keys_of("x.json", schema), {"a", "b", "c"})

    def test_wordsOfTheSchemaItselfAreNoKeys(self):
        self.assertEqual(keys_of("x.json", '{"title": "T", "required": ["a"], "properties": {}}'), set())

    def test_propertyMayBeCalledProperties(self):
        schema = '{"properties": {"properties": {"properties": {"a": {}}}}}'
        self.assertEqual(keys_of("x.json", schema), {"properties", "a"})

    def test_headerNamesKeysByItsConstants(self):
        header = ('constexpr QLatin1String name = "Name"_key;\ninline const std::wstring radius = L"Radius";\n'
                  '// as "Other"_key')
        self.assertEqual(keys_of("x.h", header), {"Name", "Radius"})

    def test_keyIsExplainedInQuotesOrBackticks(self):
        self.assertTrue(is_explained("Name", 'the key "Name"'))
        self.assertTrue(is_explained("Name", "the key `Name`"))
        self.assertFalse(is_explained("Name", 'Name, "FloorName" and `Names`'))

    def test_prefixIsExplainedWithANumberBehindIt(self):
        self.assertTrue(is_explained("layer_", "`layer_4`"))
        self.assertFalse(is_explained("layer_", "`layer_`"))

    def test_unexplainedKeyIsNamedWithItsSourceAndPage(self):
        schema = '{"properties": {"Name": {}, "Lost": {}}}'
        self.assertEqual(unexplained("schemas/beams.schema.json", schema, {"beams": '"Name"'}),
                         ["schemas/beams.schema.json: Lost is not explained in beams"])

    def test_keyOfASchemaWithoutPagesOfItsOwnMayStandOnAny(self):
        schema = '{"properties": {"Name": {}, "Lost": {}}}'
        self.assertEqual(unexplained("schemas/new.schema.json", schema, {"a": "", "b": '"Name"'}),
                         ["schemas/new.schema.json: Lost is not explained in any page"])


if __name__ == "__main__":
    unittest.main()
