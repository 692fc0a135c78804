# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-layers finds what it is there to find, and nothing else."""
import os
import unittest

from SourceCheck import SourceCheckTest


class CheckLayersTest(SourceCheckTest):
    check = "check-layers"

    def setUp(self):
        super().setUp()
        self.write("src/base/Error.h", "#include <QString>")

    def assert_only_problem(self, start):
        problems = self.problems()
        self.assertEqual(len(problems), 1, problems)
        self.assertTrue(problems[0].startswith(start), problems[0])

    def test_allows_includes_that_run_downwards(self):
        self.write("src/platform/Scheduler.h", '#include "base/Error.h"')
        self.write("src/platform/linux/Clock.cpp", '#include "platform/Scheduler.h"', "#include <sys/timerfd.h>")
        self.write("src/devices/Table.cpp", '#include "platform/Scheduler.h"', "#include <vector>")
        self.write("src/presentation/window/Model.h", '#include "devices/Table.h"')
        self.write("src/ui/window/Window.cpp", "#include <QWidget>", '#include "presentation/window/Model.h"')
        self.write("src/devices/Table.h")
        self.write("src/main.cpp", '#include "ui/window/Window.h"', '#include "platform/linux/Clock.h"')
        self.write("src/ui/window/Window.h")
        self.write("src/platform/linux/Clock.h")
        self.assertEqual(self.problems(), [])

    def test_refuses_an_include_that_runs_upwards(self):
        self.write("src/app/Model.h")
        self.write("src/devices/Table.cpp", "// text", '#include "app/Model.h"')
        self.assert_only_problem("src/devices/Table.cpp:2: devices must not include app")

    def test_refuses_a_seams_implementation_outside_main(self):
        self.write("src/platform/linux/Netlink.h")
        self.write("src/main.cpp", '#include "platform/linux/Netlink.h"')
        self.write("tests/integration/NetlinkTest.cpp", '#include "platform/linux/Netlink.h"')
        self.write("src/app/Platform.h", '#include "platform/linux/Netlink.h"')
        self.assert_only_problem("src/app/Platform.h:1: app must not include platform/linux")

    def test_refuses_the_program_in_the_helper(self):
        self.write("contract/Names.h")
        self.write("helper/main.cpp", '#include "contract/Names.h"', '#include "base/Error.h"')
        self.assert_only_problem("helper/main.cpp:2: helper must not include base")

    def test_refuses_qt_in_the_helper(self):
        self.write("helper/main.cpp", "#include <QtCore/QString>")
        self.assert_only_problem("helper/main.cpp:1: helper must not use QtCore")

    def test_refuses_the_contract_above_the_platform(self):
        self.write("contract/Names.h")
        self.write("src/app/Model.cpp", '#include "contract/Names.h"')
        self.assert_only_problem("src/app/Model.cpp:1: app must not include contract")

    def test_refuses_the_helpers_d_bus_library_in_the_program(self):
        self.write("contract/SdBus.h", "#include <sdbus-c++/sdbus-c++.h>")
        self.write("helper/main.cpp", '#include "contract/SdBus.h"')
        self.write("src/platform/linux/bus/Link.cpp", '#include "contract/SdBus.h"')
        self.assert_only_problem("src/platform/linux/bus/Link.cpp:1: src/platform/linux/bus/Link.cpp must not include "
                                 "contract/SdBus.h")

    def test_refuses_the_composition_of_a_feature_in_the_rest_of_app(self):
        self.write("src/app/features/RuleFeature.h")
        self.write("src/app/EventWiring.cpp", '#include "app/features/RuleFeature.h"')
        self.write("src/app/Termination.cpp", '#include "app/features/RuleFeature.h"')
        self.assert_only_problem("src/app/Termination.cpp:1: src/app/Termination.cpp must not include "
                                 "src/app/features/RuleFeature.h")

    def test_refuses_a_model_that_looks_sideways(self):
        self.write("src/presentation/rules/ListModel.h")
        self.write("src/presentation/window/Model.cpp", '#include "presentation/rules/ListModel.h"')
        self.assert_only_problem("src/presentation/window/Model.cpp:1: presentation/window must not include "
                                 "presentation/rules")

    def test_refuses_a_window_that_sees_another_windows_widgets(self):
        self.write("src/ui/menu/StatusItem.h")
        self.write("src/ui/window/Window.cpp", '#include "ui/menu/StatusItem.h"')
        self.assert_only_problem("src/ui/window/Window.cpp:1: ui/window must not include ui/menu")

    def test_refuses_a_window_that_sees_the_composition(self):
        self.write("src/app/EventWiring.h")
        self.write("src/ui/window/Window.cpp", '#include "app/EventWiring.h"')
        self.assert_only_problem("src/ui/window/Window.cpp:1: ui/window must not include app")

    def test_refuses_a_folder_by_the_name_of_the_one_above(self):
        self.write("src/store/file/RecordFile.h")
        self.write("src/rules/Rule.cpp", '#include "store/file/RecordFile.h"')
        self.assert_only_problem("src/rules/Rule.cpp:1: rules must not include store/file")

    def test_refuses_widgets_below_the_user_interface(self):
        self.write("src/app/Model.cpp", "#include <QObject>", "#include <QWidget>")
        self.assert_only_problem("src/app/Model.cpp:2: app must not use QtWidgets")

    def test_refuses_d_bus_in_a_feature(self):
        self.write("src/helperlink/XPCMethods.cpp", "#include <QDBusConnection>")
        self.assert_only_problem("src/helperlink/XPCMethods.cpp:1: helperlink must not use QtDBus")

    def test_refuses_a_circle_within_a_folder(self):
        self.write("src/app/One.h", '#include "app/Two.h"')
        self.write("src/app/Two.h", '#include "Three.h"')
        self.write("src/app/Three.h", "", '#include "app/One.h"')
        self.assert_only_problem("src/app/Three.h:2: includes src/app/One.h, which includes it")

    def test_refuses_a_circle_through_a_function_object(self):
        self.write("src/devices/Maker.h", "class Maker {};")
        self.write("src/devices/Changer.h", "class Maker;", "class Changer {};")
        self.write("src/app/Delegate.h", '#include "devices/Changer.h"', '#include "devices/Maker.h"',
                   "    Changer m_changer;", "    Maker m_maker;")
        self.write("src/app/Delegate.cpp", '#include "app/Delegate.h"', "Delegate::Delegate(int random)",
                   "    : m_changer(random)", "    , m_maker(random,",
                   "          [this](int address) { m_changer.change(address); })")
        self.assert_only_problem("src/app/Delegate.cpp:4: Maker is given a function of Changer, which knows Maker")

    def test_allows_a_function_object_that_closes_no_circle(self):
        self.write("src/devices/Maker.h", "class Maker {};")
        self.write("src/devices/Changer.h", "class Changer {};")
        self.write("src/app/Delegate.h", '#include "devices/Changer.h"', '#include "devices/Maker.h"',
                   "    Changer m_changer;", "    Maker m_maker;")
        self.write("src/app/Delegate.cpp", '#include "app/Delegate.h"', "Delegate::Delegate()",
                   "    : m_changer()", "    , m_maker([this](int address) { m_changer.change(address); })")
        self.assertEqual(self.problems(), [])

    def test_refuses_a_folder_that_the_table_does_not_know(self):
        self.write("src/utilities/Strings.h", '#include "base/Error.h"')
        self.assert_only_problem("src/utilities/Strings.h:1: the folder utilities is not in the table")

    def test_refuses_a_file_that_does_not_exist(self):
        self.write("src/app/Model.cpp", '#include "app/Missing.h"')
        self.assert_only_problem('src/app/Model.cpp:1: "app/Missing.h" is not a file of ours')

    def test_knows_a_header_that_the_build_makes(self):
        self.write("service/Service.cpp", '#include "contract/Interfaces.h"')
        self.assert_only_problem('service/Service.cpp:1: "contract/Interfaces.h" is not a file of ours')
        self.write("contract/generate-interfaces")
        self.assertEqual(self.problems(), [])

    def test_refuses_a_header_that_the_build_makes_where_its_folder_is_not_allowed(self):
        self.write("contract/generate-interfaces")
        self.write("src/devices/Table.cpp", '#include "contract/Interfaces.h"')
        self.assert_only_problem("src/devices/Table.cpp:1: devices must not include contract")

    def test_refuses_real_time_outside_the_platform(self):
        self.write("src/app/Model.cpp", "// a QTimer would be wrong here", "",
                   "auto now = QDateTime::currentDateTimeUtc();")
        self.write("src/platform/qt/QtScheduler.cpp", "QTimer timer;")
        self.assert_only_problem("src/app/Model.cpp:3: currentDateTimeUtc: use platform/Scheduler.h")

    def test_refuses_threads_in_a_feature(self):
        self.write("src/devices/Table.cpp", "std::thread worker;")
        self.assert_only_problem("src/devices/Table.cpp:1: std::thread: use platform/Scheduler.h")

    def test_refuses_a_folder_without_sources(self):
        os.remove(os.path.join(self.folder.name, "src/base/Error.h"))
        self.assert_only_problem("no sources in")


if __name__ == "__main__":
    unittest.main()
