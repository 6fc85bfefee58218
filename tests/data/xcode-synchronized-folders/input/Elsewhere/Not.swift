let a = NSLocalizedString("Not in the project", comment: "")
