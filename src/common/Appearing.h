#pragma once

/// The model of a screen that has something to load. What decides the screen's first picture (a tab, a cached result, sample
/// figures) is set when the model is made; `appear` is called once that picture is on view, so that no load delays it. The
/// shell calls it once for each model, on the main thread; parts of the screen are told by their model.
class Appearing
{
public:
    virtual void appear() = 0;

protected:
    ~Appearing() = default;
};
