"""Each rule finds what breaks it, and nothing else."""
import unittest

import check_texts
import exported_symbols
import shown_code
import source_rules


class SourceRules(unittest.TestCase):
    def test_the_operating_system_is_asked_for_in_its_folders_only(self):
        sources = {"tests/A/X.cpp": "#ifdef _WIN32", "tests/support/posix/Y.cpp": "#ifdef _WIN32"}
        self.assertEqual(source_rules.platform_tests_outside_platform_folders(sources),
                         ["tests/A/X.cpp: asks for the operating system outside posix/ and win32/"])

    def test_a_platform_file_needs_its_twin(self):
        sources = {"H/src/posix/A.cpp": "", "H/src/win32/A.cpp": "", "H/src/posix/B.cpp": "", "H/src/win32/C.cpp": "",
                   "tests/A/posix/OneTest.cpp": ""}
        self.assertEqual(source_rules.missing_twins(sources),
                         ["H/src/posix/B.cpp: has no twin in win32/", "H/src/win32/C.cpp: has no twin in posix/"])

    def test_includes_go_downwards(self):
        sources = {"OPXCoreTools/P/A.h": '#include "B.h"', "HostRuntime/P/B.h": '# include "A.h"', "tests/T.cpp": '#include "A.h"'}
        self.assertEqual(source_rules.includes_upwards(sources), ["HostRuntime/P/B.h: includes OPXCoreTools/P/A.h, of a floor above"])

    def test_a_made_export_header_belongs_to_its_floor(self):
        sources = {"HostRuntime/P/B.h": '#include "OPXCoreToolsExport.h"', "OPXCoreTools/P/A.h": '#include "OPXHostRuntimeExport.h"'}
        self.assertEqual(source_rules.includes_upwards(sources),
                         ["HostRuntime/P/B.h: includes OPXCoreTools/OPXCoreToolsExport.h, of a floor above"])

    def test_a_src_folder_is_closed_to_other_floors_tests_and_public_headers(self):
        sources = {"OPXCoreTools/M.m/src/A.h": "", "OPXCoreTools/M.m/src/A.cpp": '#include "A.h"', "OPXCoreTools/P/C.h": '#include "A.h"',
                   "OPXTreeBridge/M.m/src/D.cpp": '#include "A.h"', "tests/T.cpp": '#include "../OPXCoreTools/M.m/src/A.h"'}
        self.assertEqual([line.split(":")[0] for line in source_rules.includes_into_closed_rooms(sources)],
                         ["OPXCoreTools/P/C.h", "OPXTreeBridge/M.m/src/D.cpp", "tests/T.cpp"])

    def test_the_event_module_sees_exported_headers_only(self):
        sources = {"OPXCoreTools/OPXCoreTools.m/src/A.h": "", "OPXCoreTools/OPXCoreToolsEvents.m/src/E.cpp": '#include "A.h"'}
        self.assertEqual(len(source_rules.events_use_exported_headers_only(sources)), 1)


class CheckTexts(unittest.TestCase):
    def test_a_text_is_made_of_the_expression_as_written(self):
        source = 'if (!ZELSYP_CHECK_TRUE_AT(f(a, "x)") ==\n   3, 12)) return ZELSYP_CHECK_POINTER(p) && ZELSYP_CHECK_HANDLER(h);'
        self.assertEqual(sorted(text for text, _ in check_texts.check_texts(source)),
                         ['boolean f(a, "x)") == 3 is FALSE', "handler h is NULL_var", "pointer p is NULL"])

    def test_calls_and_messages_are_found_and_comments_are_not(self):
        source = '// ZELSYP_CHECK_TRUE(no)\nCheckFailure__("two " "halves", f, 1, 0); Check_Pointer_Failed__("q", f, 2, 0);'
        self.assertEqual({text for text, _ in check_texts.check_texts(source)}, {"two halves", "pointer q is NULL"})

    def test_reports_of_handlers_and_printed_lines_are_found_without_their_values(self):
        source = 'HandleFailure("not supported", f, 1); fprintf(stderr, "in %s %d, the words between\\n", f, 2); R(a, Check_TRUE_Failed__, "b");'
        self.assertEqual({text for text, _ in check_texts.check_texts(source)},
                         {"not supported", ", the words between", "boolean b is FALSE"})

    def test_the_macros_themselves_are_no_checks(self):
        self.assertEqual(check_texts.check_texts("#define A(x) \\\n  ZELSYP_CHECK_TRUE(x)\n"), set())

    def test_a_text_that_no_test_names_is_reported(self):
        literals = check_texts.literals_of(['Expect("boolean a is FALSE"); // "pointer b is NULL"', 'Expect(Pointer, "c");'])
        source = "ZELSYP_CHECK_TRUE(a); ZELSYP_CHECK_POINTER(b); ZELSYP_CHECK_POINTER(c);"
        self.assertEqual(check_texts.untested(source, literals), ["pointer b is NULL"])

    def test_a_text_that_is_said_never_to_come_is_checked_and_named_by_no_test(self):
        sources = {"A.cpp": "ZELSYP_CHECK_TRUE(a); ZELSYP_CHECK_POINTER(b);", "B.cpp": "ZELSYP_CHECK_POINTER(b);"}
        literals = {"boolean a is FALSE", "pointer b is NULL"}
        unreachable = {"A.cpp": {"boolean a is FALSE": "", "pointer b is NULL": "", "pointer gone is NULL": ""}}
        self.assertEqual(check_texts.pretended(sources, literals, unreachable),
                         ["A.cpp: is said never to report what it does not check: pointer gone is NULL",
                          "A.cpp: never reports what a test names: boolean a is FALSE"])


class ExportedSymbols(unittest.TestCase):
    def test_symbols_of_other_libraries_are_left_out(self):
        foreign = ["_ZNSt6vectorIiSaIiEE9push_backEOi", "_ZTISt9exception", "_ZN8nlohmann6detail5helloEv", "_ZNKSt3mapIiiE4sizeEv",
                   "_ZTVN5boost3fooE", "_ZZNSt19_Sp_make_shared_tag5_S_tiEvE5__tag"]
        mine = ["_Z14CheckFailure__PKcS0_iS0_", "_ZN9ZELStringC1EPKc", "_ZTV9ZELString", "_ZNK9ZELString7GetViewEv"]
        self.assertEqual(exported_symbols.ours([*foreign, *mine]), mine)


class ShownCode(unittest.TestCase):
    def test_a_block_is_found_whatever_its_indentation(self):
        page = "Right:\n\n```cpp\nif (a)\n  b();\n```\n"
        self.assertEqual(shown_code.unfounded_blocks(page, ["void f()\n{\n  if (a)\n    b();\n}\n"]), [])

    def test_a_block_that_differs_in_one_line_is_reported(self):
        page = "```cpp\na();\nb();\n```\n\n```cpp\nc();\n```\n"
        self.assertEqual(shown_code.unfounded_blocks(page, ["a();\nx();\nb();\n", "c();\n"]), ["a();"])

    def test_code_of_other_languages_is_not_looked_for(self):
        self.assertEqual(shown_code.unfounded_blocks("```\nprinted\n```\n", []), [])

    def test_a_page_with_code_says_what_is_right_and_what_is_wrong(self):
        self.assertEqual(shown_code.missing_halves("Right: this.\n\n```cpp\na();\n```\n"), ["Wrong"])
        self.assertEqual(shown_code.missing_halves("Nothing is shown.\n"), [])


if __name__ == "__main__":
    unittest.main()
