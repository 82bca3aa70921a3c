"""The structure check on small made-up trees: each kind of violation is found on its line, and clean code passes."""

import importlib.machinery
import importlib.util
import os
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
TOOL = os.path.join(ROOT, 'tools', 'check-structure')


def load():
    sys.dont_write_bytecode = True
    loader = importlib.machinery.SourceFileLoader('check_structure', TOOL)
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader('check_structure', loader))
    sys.modules['check_structure'] = module
    loader.exec_module(module)
    return module


CHECK = load()


def findings(files, instance_callers=()):
    """[(path, line, text)] for a tree of {path: content}."""
    with tempfile.TemporaryDirectory() as root:
        for path, content in files.items():
            full = os.path.join(root, path)
            os.makedirs(os.path.dirname(full), exist_ok=True)
            with open(full, 'w', encoding='utf-8') as file:
                file.write(content)
        return [(found.path, found.line, found.text) for found in CHECK.Tree(root, dict.fromkeys(instance_callers, '')).check()]


def function(lines, head='int f()'):
    """A function that is `lines` long from its parameter list to its closing brace."""
    return head + '\n{\n' + '    g();\n' * (lines - 3) + '}\n'


CLEAN = {
    'app/main.cpp': '#include "ui/main/DialogMain.h"\nint main()\n{\n    return ZARN::Property::instance().run();\n}\n',
    'app/Property.cpp': '#include "app/Property.h"\n#include "vesk/base/Timer.h"\nProperty& Property::instance()\n{\n    static Property p;\n    return p;\n}\n',
    'app/Property.h': '#pragma once\n/// The settings.\nclass Property {\n    int mA{3};\n};\n/// Pairs.\ntemplate <typename A,\n          typename B>\n'
                      'struct Pair {\n};\nclass Console;\nenum class EUnit { eMetric };\n',
    'profile/Colour.cpp': '#include <QColor>\n#include <QAction>\n#include <QGuiApplication>\n// QWidget and glClear() in a comment, '
                          '\nconst char* text = "QDialog glFlush() X::instance()";\n',
    'vesk/gl/Lines.cpp': '#include <QOpenGLFunctions>\nvoid lines()\n{\n    glDrawArrays(1, 2, 3);\n    f->glFlush();\n}\n',
    'ui/main/DialogMain.cpp': '#include "ui/data/DialogData.h"\n#include "ui/main/DialogMain.h"\n#include <QMainWindow>\nvoid f() { QCoreApplication::instance()->quit(); }\n'
                              '#include "DialogMain.moc"\n',
    'cli/main.cpp': '#include "export/ExportCsv.h"\n',
    'tests/app/TestProperty.cpp': '#include "tests/support/Builder.h"\n#include "ui/main/DialogMain.h"\n#include <QWidget>\n',
    'docs/a.md': 'A KML specifi' 'cation and Part of it, tissue 4.\n',
}


class CleanTree(unittest.TestCase):
    def test_passes(self):
        self.assertEqual(findings(CLEAN), [])


class Program(unittest.TestCase):
    def test_status_and_output(self):
        with tempfile.TemporaryDirectory() as root:
            self.assertEqual(subprocess.run([sys.executable, TOOL, root], capture_output=True, check=False).returncode, 2)
            os.makedirs(os.path.join(root, 'app'))
            for content, status, last in [('int a;\n', 0, 'The structure holds.'), ('// TO' 'DO\n', 1, '1 findings')]:
                with open(os.path.join(root, 'app', 'A.cpp'), 'w', encoding='utf-8') as file:
                    file.write(content)
                done = subprocess.run([sys.executable, TOOL, root], capture_output=True, text=True, check=False)
                self.assertEqual((done.returncode, done.stdout.splitlines()[-1]), (status, last))


class Violations(unittest.TestCase):
    def expect(self, path, content, line, part, **more):
        found = findings({path: content}, **more)
        self.assertEqual([(item[0], item[1]) for item in found], [(path, line)], found)
        self.assertIn(part, found[0][2])

    def test_includes(self):
        for path, include, part in [
            ('app/A.cpp', '"card/A.h"', 'not below'),
            ('vesk/base/A.h', '"app/Console.h"', 'not below'),
            ('card/record/A.h', '"openstreet/core/Tile.h"', 'not below'),       # same level
            ('ui/data/model/A.h', '"ui/data/DialogData.h"', 'not below'),
            ('ui/graph/A.h', '"app/main.cpp"', 'not below'),
            ('card/A.cpp', '"vesk/gl/Lines.h"', 'neither widgets nor GL'),
            ('ui/map/model/A.cpp', '"openstreet/gl/Map.h"', 'neither widgets nor GL'),
            ('cli/A.cpp', '"ui/graph/WidgetGraphES.h"', 'neither widgets nor GL'),
            ('card/A.cpp', '"CardContainer.h"', 'no folder'),
            ('card/A.cpp', '<QtWidgets/QLabel>', 'neither widgets nor GL'),
            ('cli/A.cpp', '<QApplication>', 'neither widgets nor GL'),
            ('ui/graph/model/A.cpp', '<GL/gl.h>', 'neither widgets nor GL'),
        ]:
            with self.subTest(path=path, include=include):
                self.expect(path, f'// one\n#include {include}\n', 2, part)

    def test_names_and_calls(self):
        for path, code, part in [
            ('analysis/A.cpp', 'QTableWidget* t;', 'QTableWidget'),
            ('ui/graph/model/A.cpp', 'void f(QOpenGLContext*);', 'QOpenGLContext'),
            ('export/A.cpp', 'void f() { QMessageBox::warning(); }', 'QMessageBox'),
            ('ui/graph/A.cpp', 'void f() { glClear(3); }', 'glClear'),
            ('ui/map/A.cpp', 'void f() { functions()->glFlush (); }', 'glFlush'),
            ('card/A.cpp', 'int a = Profile::instance().id();', 'Profile::instance'),
            ('ui/main/A.cpp', 'int a = ZARN::Project::instance ( );', 'Project::instance'),
            ('ui/main/A.cpp', 'int a = mSession.property.getInt(kUnit, 0);', 'app/Settings.h'),
            ('ui/main/A.cpp', 'constexpr TextSetting k = {"Profile", ""};', 'app/Settings.h'),
            ('report/A.cpp', 'while (chunk < entries.chunkCount())', 'take a Trace'),
            ('report/A.cpp', 'for (const auto& r : entries.chunk(0))', 'take a Trace'),
            ('report/A.cpp', 'const double v = decoder.value(r.payload, true);', 'decodes on its own'),
            ('report/A.cpp', 'for (const ProfileDevice& device : model.devices())', 'walks over devices'),
            ('report/A.cpp', 'time.toString("dd.MM.yyyy hh:mm")', 'DateText'),
            ('ui/main/A.cpp', 'int a = p.getInt("X/Y", 0);', 'app/Settings.h'),
            ('live/A.cpp', 'const QString name = "LOG00001.CAN";', 'suffix'),
            ('live/A.cpp', 'const QString filter = "*.CAN *.log";', 'suffix'),
            ('ui/map/A.cpp', 'const QRgb red = qRgb(1, 2, 3);', 'Palette'),
            ('ui/map/A.cpp', 'pen.setColor(Qt::darkRed);', 'Palette'),
            ('ui/map/A.cpp', 'const QColor ground(30, 34, 40);', 'Palette'),
            ('ui/map/A.cpp', 'constexpr QRgb kRed = 0xffff0000;', 'Palette'),
        ]:
            with self.subTest(code=code):
                self.expect(path, '/* a\n' + 'b */ ' + code + '\n', 2, part)

    def test_lists_only_shrink(self):
        found = findings({'trace/Trace.h': 'constexpr int kRun = 512;\n', 'profile/Threshold.h': 'int a;\n'})
        unused = [text for path, _, text in found if path == 'tools/check-structure']
        self.assertTrue(any('profile/Threshold.h' in text for text in unused), unused)
        self.assertTrue(any('Profile stands' in text for text in unused), unused)
        self.assertFalse(any('trace/Trace.h' in text for text in unused), unused)

    def test_half_classes(self):
        header = '#pragma once\n/// One.\nclass A {\n};\n'
        for code in ['void A::f(int a) const\n{\n}\n', 'template <typename T>\nA::A(T t) : mT(t)\n{\n}\n', 'int N::A::B::f()\n{\n}\n']:
            with self.subTest(code=code):
                found = findings({'card/A.h': header, 'card/ASlots.cpp': code, 'card/A.cpp': code})
                self.assertEqual([(path, text) for path, _, text in found], [('card/ASlots.cpp', 'defines a member of A, a class of another file')])

    def test_mutual_folders(self):
        for first, second, is_found in [
            (('app/A.h', 'vesk/base/A.h'), ('vesk/gl/A.h', 'app/B.h'), True),
            (('report/A.h', 'ui/canvas/A.h'), ('ui/main/A.h', 'report/B.h'), False),
            (('project/A.h', 'profile/A.h'), ('profile/ui/A.h', 'project/B.h'), False),
            (('profile/A.h', 'card/record/A.h'), ('card/A.h', 'profile/B.h'), False),
            (('ui/main/A.h', 'app/A.h'), ('app/main.cpp', 'ui/main/B.h'), False),
        ]:
            with self.subTest(first=first, second=second):
                found = findings({path: f'#include "{include}"\n' for path, include in (first, second)})
                self.assertEqual([path for path, _, text in found if 'which includes' in text], [first[0], second[0]] if is_found else [])

    def test_public_functions(self):
        functions = ''.join(f'    [[nodiscard]] int f{i}(int a = 0) const {{ return mA{{}}; }}\n    int f{i}();\n' for i in range(25))
        private = 'Q_SIGNALS:\n    void s();\nprivate:\n    int mA{}, mB = f(3);\n    void g();\n};\n'
        head = '#pragma once\n/// One.\nclass A final {\n    Q_OBJECT\npublic:\n    enum E { eA };\n    A();\n    ~A();\n    using F = void (*)(int);\n' + functions
        self.assertEqual(findings({'card/A.h': head + private}), [])
        self.expect('card/A.h', head + 'public Q_SLOTS:\n    bool operator==(const A& a) const;\n' + private, 3, '26 public functions')
        self.assertEqual(findings({'card/A.h': (head + '    void g();\n' + private).replace('class A', 'class Profile')}), [])

    def test_unknown_folder(self):
        self.expect('extras/A.cpp', 'int a;\n', 1, 'no target')

    def test_list_of_instance_callers(self):
        code = 'int a = Profile::instance().id();\n'
        self.assertEqual(findings({'ui/main/A.cpp': code}, ['ui/main/A.cpp']), [])
        self.expect('ui/main/A.cpp', 'int a;\n', 1, 'take it off', instance_callers=['ui/main/A.cpp'])

    def test_comment_above_types(self):
        for head in ['class A {', 'struct A {', 'template <typename T>\nclass A {', 'class A final : public B<int(int)> {', 'namespace N {\nclass A {']:
            close = '};\n}\n' if head.startswith('namespace') else '};\n'
            line = 2 + head.startswith('namespace')
            with self.subTest(head=head):
                self.expect('card/A.h', f'#pragma once\n{head}\n    struct Nested {{\n    }};\n{close}', line, 'without a comment')

    def test_words(self):
        for path, text in [
            ('docs/a.md', 'As Part ' '2.1 says'), ('app/A.cpp', '// the specifi' 'cation'), ('CMakeLists.txt', '# see decisions' '.md'),
            ('tests/A.cpp', '// iss' 'ue #12'), ('card/A.h', '// TO' 'DO later'), ('card/A.cpp', '// a st' 'ub'),
        ]:
            with self.subTest(text=text):
                self.expect(path, text + '\n', 1, 'says')
        self.assertEqual(findings({'DEVELOPERS.md': 'The specifi' 'cation\n', 'LICENSE': 'iss' 'ue 3\n'}), [])


class Sizes(unittest.TestCase):
    HEADS = [
        'int f()', 'int A::f(const B& b) const noexcept', 'A::A(int a) : mA(a), mB{a}', 'A::A()\n    : mA{1}\n    , mB{2}', 'auto f(int a = 3) -> int',
        'template <typename T = int> requires std::integral<T>\nT f(T t)', 'bool A::operator==(const A& other) const', 'int A::operator()(int a)',
        'explicit operator bool() const', '[[nodiscard]] int f(std::function<void(int)> g = [](int) {})', 'static const auto f = [](int a)',
        'namespace N {} class A : public B { public: int f()', 'static int a[] = {1, 2}; struct C { int x; } c; int f()',
    ]

    def over_wall(self, code):
        return [found for found in findings({'card/A.cpp': code}) if 'a function of' in found[2]]

    def test_function_wall(self):
        for head in self.HEADS:
            tail = '};\n' if 'class A' in head else ';\n'
            # The function is measured from the line of its parameter list.
            extra = head.count('\n') if head.startswith('A::A()') else 0
            with self.subTest(head=head):
                self.assertEqual(self.over_wall(function(80 - extra, head) + tail), [])
                found = self.over_wall(function(81 - extra, head) + tail)
                self.assertEqual(len(found), 1, found)
                self.assertIn('81 lines', found[0][2])

    def test_tables_of_test_data_may_be_long(self):
        code = function(200, 'void TestA::rows_data()')
        self.assertEqual(findings({'tests/card/TestA.cpp': code}), [])
        self.assertEqual(len(self.over_wall(code)), 1)
        self.assertEqual(len(findings({'tests/card/TestA.cpp': function(200, 'void TestA::rows()')})), 1)

    def test_braces_in_texts_do_not_count(self):
        body = ('    // }}}\n    /* { */\n    char c = \'{\'; int n = 1\'000;\n    auto s = "}}\\"}";\n    auto r = R"x(}}"}\n)" })x";\n#define OPEN {\n#define TWO \\\n  {{\n'
                '    auto l = [&](int) { if (n) { c = \'"\'; } };\n')
        self.assertEqual(findings({'card/A.cpp': 'void f()\n{\n' + body + '}\n' + function(80)}), [])
        self.assertEqual(len(self.over_wall('void f()\n{\n' + body + function(75, '    struct L { void g()') + '};\n}\n')), 1)

    def test_unbalanced_is_said(self):
        for code in ['void f()\n{\n', 'int a;\n}\n']:
            found = findings({'card/A.cpp': code})
            self.assertEqual(len(found), 1)
            self.assertIn('do not balance', found[0][2])

    def test_file_walls(self):
        for path, wall in [('card/A.cpp', 600), ('card/A.h', 250), ('tests/card/A.cpp', 600)]:
            with self.subTest(path=path):
                self.assertEqual(findings({path: 'int a;\n' * wall}), [])
                self.assertEqual(len(findings({path: 'int a;\n' * (wall + 1)})), 1)


if __name__ == '__main__':
    unittest.main()
