// TabValueDialog with 10 tabs of 20 parameters (200 descriptors of mixed
// types), from the factory call through its first completed show, against
// a baseline in the same run that builds the same widgets into the same
// grids directly in code, with no parsing.
#include "dialogs.h"
#include "engine.h"
#include "ratioreporter.h"
#include "hostwidgets.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int kTabs = 10;
constexpr int kGroupsPerTab = 2;
constexpr int kParamsPerGroup = 10;
const char* const kTypes[] = {"real", "integer", "string", "list", "bool"};
const char kItems[] = "slow|medium|fast|fastest";

struct Pages {
    std::vector<std::string> tabs, groups, params, values;
};

const Pages& pages()
{
    static const Pages* p = [] {
        auto* out = new Pages;
        for (int t = 0; t < kTabs; ++t) {
            const std::string tab = "Tab " + std::to_string(t);
            out->tabs.push_back(tab);
            for (int g = 0; g < kGroupsPerTab; ++g) {
                const std::string group = "Group " + std::to_string(g);
                out->groups.push_back(tab + "::" + group + ":0:" + std::to_string(g));
                for (int i = 0; i < kParamsPerGroup; ++i) {
                    const int kind = (t * 20 + g * 10 + i) % 5;
                    std::string d = tab + ":" + group + ":Parameter " + std::to_string(i) + ":"
                                    + std::to_string(i) + ":0:" + (kind < 2 ? "V" : "") + ":"
                                    + kTypes[kind] + ":" + (kind == 3 ? kItems : "");
                    out->params.push_back(d);
                    out->values.push_back(kind == 3 ? "fast" : kind == 4 ? "1" : "10k");
                }
            }
        }
        return out;
    }();
    return *p;
}

vtkit::Engine& engine()
{
    static vtkit::Engine* e = [] {
        auto* engine = new vtkit::Engine;
        if (!engine->load(VT_MODULE_PATH))
            std::abort();
        // Show once, so that the pages are built, and close.
        engine->setDialogRunner([](QDialog* dialog, UserFunctionInterface* call, vtkit::ScriptValue&,
                                   std::string&) {
            vtkit::loadBoundWidgets(dialog, call);
            dialog->show();
            delete dialog;
            return false;
        });
        return engine;
    }();
    return *e;
}

void TabValueDialog(benchmark::State& state)
{
    const Pages& p = pages();
    const std::vector<vtkit::ScriptValue> args = {
        vtkit::ScriptValue::fromStrings(p.tabs), vtkit::ScriptValue::fromStrings(p.groups),
        vtkit::ScriptValue::fromStrings(p.params), vtkit::ScriptValue::fromStrings(p.values),
        vtkit::ScriptValue::fromStrings({"Device", "Headline", "1"})};
    for (auto _ : state)
        benchmark::DoNotOptimize(engine().call("TabValueDialog", args));
}

QWidget* plainControl(int kind, QWidget* parent)
{
    switch (kind) {
    case 0:
    case 1: {
        auto* spinner = new Spinner(parent);
        spinner->setInteger(kind == 1);
        spinner->setMinimumWidth(75);
        spinner->setEngMode(kind == 0);
        spinner->setText(QStringLiteral("10k"));
        return spinner;
    }
    case 2:
        return new EditBox(parent);
    case 3: {
        auto* combo = new ComboBox(parent);
        combo->loadStrings(kItems);
        combo->setValue(2);
        return combo;
    }
    default: {
        auto* check = new CheckBox(parent);
        check->setText(QStringLiteral("Parameter"));
        check->setChecked(true);
        return check;
    }
    }
}

// The same dialog, widgets and grids, made directly.
void PlainWidgets(benchmark::State& state)
{
    for (auto _ : state) {
        auto* dialog = new QDialog;
        auto* main = new QVBoxLayout(dialog);
        auto* title = new QLabel(QStringLiteral("Headline"), dialog);
        auto* tabs = new QTabWidget(dialog);
        main->addWidget(title);
        main->addWidget(tabs);
        auto* buttons = new QHBoxLayout;
        main->addLayout(buttons);
        buttons->addStretch();
        for (const char* text : {"Ok", "Cancel", "Help"})
            buttons->addWidget(new QPushButton(QLatin1String(text), dialog));
        for (int t = 0; t < kTabs; ++t) {
            auto* page = new QWidget;
            auto* pageGrid = new QGridLayout(page);
            pageGrid->setAlignment(Qt::AlignTop);
            tabs->addTab(page, QStringLiteral("Tab %1").arg(t));
            for (int g = 0; g < kGroupsPerTab; ++g) {
                auto* box = new GroupBox(page);
                box->setTitle(QStringLiteral("Group %1").arg(g));
                box->setCheckable(false);
                auto* grid = new QGridLayout(box);
                grid->setAlignment(Qt::AlignTop);
                pageGrid->addWidget(box, 0, g);
                for (int i = 0; i < kParamsPerGroup; ++i) {
                    const int kind = (t * 20 + g * 10 + i) % 5;
                    QWidget* control = plainControl(kind, box);
                    if (kind == 4) {
                        grid->addWidget(control, i, 0, 1, 3);
                        continue;
                    }
                    grid->addWidget(new QLabel(QStringLiteral("Parameter %1").arg(i), box), i, 0);
                    grid->addWidget(control, i, 1);
                    if (kind < 2)
                        grid->addWidget(new QLabel(QStringLiteral("V"), box), i, 2);
                }
            }
        }
        dialog->show();
        delete dialog;
    }
}

BENCHMARK(PlainWidgets)->Unit(benchmark::kMillisecond);
BENCHMARK(TabValueDialog)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    pages();
    engine();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n%-16s %-14s %-5s %8s %s\n", "case", "baseline", "time", "ratio", "target");
    for (const bool cpu : {false, true}) {
        const double t = cpu ? reporter.cpuTime("TabValueDialog") : reporter.time("TabValueDialog");
        const double b = cpu ? reporter.cpuTime("PlainWidgets") : reporter.time("PlainWidgets");
        if (t > 0 && b > 0)
            std::printf("%-16s %-14s %-5s %8.2f <= 1.3 %s\n", "TabValueDialog", "PlainWidgets",
                        cpu ? "cpu" : "real", t / b, t / b <= 1.3 ? "met" : "MISSED");
    }
    return 0;
}
