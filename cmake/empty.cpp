// Nothing: the target that compiles this file makes the precompiled header its group shares.
