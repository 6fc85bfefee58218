label.text = NSLocalizedString(@"Open", @"Menu title");
