#pragma once

#include <string>

#include "host/Host.h"
#include "host/QVDriverSupport.h"
#include "host/QVInformes.h"

/// The least that a host can give: an empty directory, no images, each text its own number.
struct Setup : QVVornelSetup {
  const QVWideString& CfgPath() const override { return directory; }
  QVWideString getImageFilePath() const override { return directory; }
  unsigned ProgramIDResource() const override { return 1; }
  QVWideString directory = L"./";
};
struct Guids : QVVornelGuids {
  void invalidateGuid(int, bool) override {}
};
struct Texts : QVLoadString {
  QVWideString& operator()(unsigned id, QVWideString& text) const override {
    return text = std::to_wstring(id).c_str();
  }
};
struct NoClipboard : QVClipboard {
  bool PutToClipboard(const char*, int, int) override { return false; }
  int GetFromClipboard(std::unique_ptr<char[]>&, int) const override { return 0; }
};
/// Evaluators that take everything for true.
struct Evaluator : QVEvaluator {
  void EnableDiscriminators(bool) override {}
  int AnalizeExpression() override { return 1; }
  int Evaluate(double& value, int& type) override {
    value = 1;
    type = TypeLogical;
    return CodeEvaluated;
  }
  const QVWideString& Expr() const override { return expression; }
  bool TakeFlags(std::initializer_list<int>) override { return true; }
  QVWideString expression;
};
struct Drivers : QVDriverSupport {
  std::unique_ptr<QVEvaluator> NewEvaluator(const QVWideString&) const override {
    return std::make_unique<Evaluator>();
  }
  bool ErrorMsg(int, QVWideString&) const override { return false; }
  bool isThereAModuleInExpression(const std::wstring&) const override { return false; }
};
struct Wizzard : CDlgWizzard {
  void SetExpression(const QVWideString& text, int, int) override { m_expression = text; }
  int DoModal() override { return 2; }
};
struct Informes : QVInformes {
  std::unique_ptr<CDlgWizzard> NewWizzard(QWidget*, const VariableClasses&, bool,
                                          int) const override {
    return std::make_unique<Wizzard>();
  }
};
struct Index : CreateDiscriminatorIndex {
  bool operator()(const QVWideString&, const QVWideString&) override { return true; }
};
