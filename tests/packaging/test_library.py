"""The programs of docs/library.md, built against what is installed, print what stands there."""

import glob
import os
import re
import unittest

from installed import SOURCE, Installed, run, source


class Library(Installed):
    component = "development"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        text = source("docs", "library.md")
        cls.work = os.path.join(cls.prefix, "carpet")
        os.mkdir(cls.work)
        cls.write("CMakeLists.txt", re.search(r"```cmake\n(.*?)```", text, re.S).group(1))
        cls.expected = {}
        pairs = re.findall(r"```cpp\n// (\w+)\.cpp\n(.*?)```\n\n```text\n(.*?)```", text, re.S)
        for name, code, output in pairs:
            cls.write(name + ".cpp", code)
            cls.expected[name] = output
        run("cmake", "-S", cls.work, "-B", cls.work, "-G", "Ninja",
            "-DCMAKE_PREFIX_PATH=" + cls.prefix, "-DCMAKE_BUILD_TYPE=Release",
            "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wno-missing-field-initializers -Werror")
        run("cmake", "--build", cls.work)

    @classmethod
    def write(cls, name, text):
        with open(os.path.join(cls.work, name), "w", encoding="utf-8") as file:
            file.write(text)

    def test_the_programs_of_the_page_print_what_stands_there(self):
        self.assertEqual(sorted(self.expected), ["estimate", "order"])
        for name, output in self.expected.items():
            self.assertGreater(output.count("\n"), 2)
            self.assertEqual(run(os.path.join(self.work, name)), output, name)

    def test_each_header_for_users_is_there_and_needs_no_other(self):
        cmake = source("packaging", "library.cmake")
        named = re.search(r"set\(library_headers\n(.*?)\)", cmake, re.S).group(1).split()
        self.assertGreater(len(named), 10)
        code = "".join(f"#include <tarn/{name}>\n" for name in named)
        for first in (code, "".join(reversed(code.splitlines(True)))):
            run("c++", "-std=c++20", "-fsyntax-only", "-Wall", "-Wextra", "-Wpedantic", "-Werror",
                "-I", self.path("include"), "-x", "c++", "-", input=first)

    def test_headers_take_no_name_of_the_user_but_one(self):
        self.assertEqual(os.listdir(self.path("include")), ["tarn"])
        for path in glob.glob(self.path("include", "tarn", "*", "*.h")):
            with open(path, encoding="utf-8") as file:
                for included in re.findall(r'#include "(.*?)"', file.read()):
                    self.assertTrue(included.startswith("tarn/"), f"{path}: {included}")
                    self.assertTrue(os.path.exists(self.path("include", included)), included)

    def test_no_place_of_the_build_is_left_in_it(self):
        for name in self.files():
            if name.endswith((".cmake", ".h")):
                with open(self.path(name), encoding="utf-8") as file:
                    self.assertNotIn(SOURCE, file.read(), name)

    def test_the_page_tells_an_example_in_ten_lines_or_so(self):
        for name in self.expected:
            with open(os.path.join(self.work, name + ".cpp"), encoding="utf-8") as file:
                body = re.search(r"int main\(\) \{\n(.*)\}", file.read(), re.S).group(1)
            self.assertLessEqual(body.count("\n"), 13, name)


if __name__ == "__main__":
    unittest.main(verbosity=2)
