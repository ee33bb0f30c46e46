"""Run with: python3 scripts/mutation/faults_test.py"""

import textwrap
import unittest

import faults


def found(text, kind=None):
    """What would be put in place of what, all over the text."""
    text = textwrap.dedent(text)
    return [
        (text[site.begin : site.end], *site.replacements)
        for site in faults.sites(text)
        if kind in (None, site.kind)
    ]


class Sites(unittest.TestCase):
    def test_code_outside_functions_has_only_its_constants(self):
        self.assertEqual(
            found("""
                #include <vector> // 1 + 1
                /* a < b; */
                #define TWICE(x) \\
                    (2 * x)
                namespace room {
                template <int N = 3> class [[nodiscard]] Box : public Base<4> {
                  public:
                    virtual bool open(const Key& key, Lid&& lid) const = 0;
                    Box& operator+=(const Box*) = delete;
                    bool operator==(const Box& other) const;
                    static_assert(N < 9, "R\\"(5)");
                    const char* const name = "6 + 7";
                    int height = 0x0F;
                    std::array<int, 8> sides;
                };
                using Small = Box<2>;
                }
            """),
            [("0x0F", "0x10", "0x0e")],
        )

    def test_an_operator_between_operands_is_told_from_signs_pointers_and_brackets(self):
        self.assertEqual(
            found("void f(int* a, T&& b) { g(*a * -c, &d & e, std::vector<int>{} < h && !i, \"t\" + j); }"),
            [
                ('g(*a * -c, &d & e, std::vector<int>{} < h && !i, "t" + j);', ";"),
                ("*", "/"), ("-", ""), ("&", "|"), ("<", "<="), ("&&", "||"), ("!", ""),
            ],
        )

    def test_constants_change_by_one(self):
        self.assertEqual(
            found("int a[] = {0, 1, 20U, 0xff, 1'000, 0.5, true};"),
            [
                ("0", "1"), ("1", "2", "0"), ("20U", "21U", "19U"), ("0xff", "0xfe"), ("1'000", "1001", "999"),
                ("0.5", "1.5"), ("true", "false"),
            ],
        )

    def test_whole_statements_go_and_declarations_stay(self):
        self.assertEqual(
            found(
                """
                Box::Box(int n) : sides{n}, lid(n)
                {
                    std::vector<int> list(n);
                    const auto& [one, two] = list;
                    Box other;
                    static_cast<void>(one);
                    if (n)
                        return;
                    list = later([this] { close(); });
                    switch (n) {
                    case a: break;
                    default: open(); break;
                    }
                }
                """,
                "statement",
            ),
            [
                ("return;", ";"),
                ("list = later([this] { close(); });", ";"),
                ("close();", ";"),
                ("break;", ";"),
                ("open();", ";"),
            ],
        )

    def test_conditions_and_results_become_true_and_false(self):
        self.assertEqual(
            found("""
                bool f(int n)
                {
                    if (int m = n; m == k)
                        return n == k;
                    while (n || k)
                        n = k ? n : k;
                    for (int i = n; i != k; ++i) {}
                    return true;
                }
            """),
            [
                ("m == k", "true", "false"), ("==", "!="),
                ("n == k", "true", "false"), ("==", "!="),
                ("n || k", "false"), ("||", "&&"),
                ("n = k ? n : k;", ";"), ("k", "true", "false"),
                ("i != k", "false"), ("!=", "=="),
                ("true", "false"),
            ],
        )

    def test_a_result_is_only_changed_where_it_is_a_bool(self):
        self.assertEqual(found("int f() { return a; } auto g = [] { return b; };"), [])
        self.assertEqual(found("auto g = [](int b) -> bool { return b; };"), [("b", "true", "false")])

    def test_axes_change_only_where_the_other_name_is_known_and_nothing_is_declared(self):
        self.assertEqual(
            found("void f(int x, int y, int width) { int min_x = x; Size max_y(width); }"),
            [("x", "y")],
        )


if __name__ == "__main__":
    unittest.main()
