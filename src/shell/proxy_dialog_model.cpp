#include "shell/proxy_dialog_model.h"

#include "numbers/text_rules.h"

namespace tessarondel {

ProxyDialogModel::ProxyDialogModel(ProxySettingsTexts& held, ApplyFunction apply, OpenFlagFunction setDialogOpen)
    : held_(held), apply_(std::move(apply)), setDialogOpen_(std::move(setDialogOpen)) {}

void ProxyDialogModel::AttachKeepHistory(std::u16string& held, StoreKeepHistoryFunction store) {
    keepHistoryHeld_ = &held;
    storeKeepHistory_ = std::move(store);
}

void ProxyDialogModel::Open() {
    keepHistory_ = keepHistoryHeld_ && KeepHistoryOn(*keepHistoryHeld_);
    boxes_ = held_;
    copy_ = held_;
    useProxy_ = held_.State != u"0";
    open_ = true;
    if (setDialogOpen_) setDialogOpen_(true);
}

namespace {

template <typename Texts>
auto& FieldOf(Texts& texts, ProxyField field) {
    switch (field) {
        case ProxyField::Port:
            return texts.Port;
        case ProxyField::UserName:
            return texts.UserName;
        case ProxyField::Password:
            return texts.Password;
        default:
            return texts.Proxy;
    }
}

}  // namespace

std::u16string& ProxyDialogModel::Field(ProxyField field) { return FieldOf(boxes_, field); }

const std::u16string& ProxyDialogModel::FieldText(ProxyField field) const { return FieldOf(boxes_, field); }

void ProxyDialogModel::SetFieldText(ProxyField field, std::u16string text) { Field(field) = std::move(text); }

void ProxyDialogModel::ClickUseProxy(bool checked) {
    useProxy_ = checked;
    held_.State = checked ? u"1" : u"0";
}

void ProxyDialogModel::ClickOk() {
    held_.Proxy = TrimBlanks(boxes_.Proxy);
    held_.Port = TrimBlanks(boxes_.Port);
    held_.UserName = TrimBlanks(boxes_.UserName);
    held_.Password = TrimBlanks(boxes_.Password);
    if (apply_) apply_(held_);
    StoreKeepHistory();
    Close();
}

void ProxyDialogModel::StoreKeepHistory() {
    if (!keepHistoryHeld_ || KeepHistoryOn(*keepHistoryHeld_) == keepHistory_) return;
    *keepHistoryHeld_ = keepHistory_ ? u"1" : u"0";
    if (storeKeepHistory_) storeKeepHistory_(keepHistory_);
}

void ProxyDialogModel::ClickCancel() {
    held_ = copy_;
    Close();
}

void ProxyDialogModel::ClickDefault() {
    ClickUseProxy(false);
    ClickOk();
}

void ProxyDialogModel::Close() {
    open_ = false;
    if (setDialogOpen_) setDialogOpen_(false);
}

}  // namespace tessarondel
