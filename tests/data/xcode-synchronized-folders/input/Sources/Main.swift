let a = NSLocalizedString("Main", comment: "taken")
