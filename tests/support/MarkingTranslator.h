#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, every text that goes through a translation function comes back as "context:text", so that a test
/// sees which texts do, and in which context.
class MarkingTranslator : public QTranslator {
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*remark*/, int /*count*/) const override {
        return QString(context) + ':' + text;
    }
};
