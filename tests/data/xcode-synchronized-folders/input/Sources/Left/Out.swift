let a = NSLocalizedString("Left out", comment: "no target compiles it")
