#import "BerthListController.h"

#import "Berth.h"
#import "BerthDetailController.h"

@implementation BerthListController

- (void)viewDidLoad {
    [super viewDidLoad];
    self.title = NSLocalizedString(@"Berths", @"Title of the berth list");
    self.navigationItem.rightBarButtonItem =
        [[UIBarButtonItem alloc] initWithTitle:NSLocalizedString(@"Find a berth", @"Button above the list")
                                         style:UIBarButtonItemStyleBordered
                                        target:self
                                        action:@selector(findBerth:)];
}

- (NSString *)tableView:(UITableView *)table titleForHeaderInSection:(NSInteger)section {
    if (section == 0) {
        return NSLocalizedString(@"North pier", @"Section of the list");
    }
    if (section == 1) {
        return NSLocalizedString(@"South pier", @"Section of the list");
    }
    return NSLocalizedString(@"Guest pontoon", @"Section of the list");
}

- (NSString *)tableView:(UITableView *)table titleForFooterInSection:(NSInteger)section {
    NSString *format = NSLocalizedStringWithDefaultValue(@"berths.free.count", @"Localizable", [NSBundle mainBundle],
                                                         @"%d berths free", @"Below each section");
    return [NSString stringWithFormat:format, [self freeBerthsInSection:section]];
}

- (int)freeBerthsInSection:(NSInteger)section {
    int free = 0;
    for (Berth *berth in self.berths[section]) {
        free += berth.state == BerthFree;
    }
    return free;
}

- (void)findBerth:(id)sender {
    UIAlertView *alert =
        [[UIAlertView alloc] initWithTitle:NSLocalizedString(@"How long is your boat?", @"Title of the search")
                                   message:NSLocalizedString(
                                               @"Metres over all, bowsprit included.",
                                               @"Explains the length that is asked for; keep it short, "
                                                "the alert is narrow")
                                  delegate:self
                         cancelButtonTitle:NSLocalizedString(@"Cancel", @"Leaves the search")
                         otherButtonTitles:NSLocalizedString(@"Search", @"Starts the search"), nil];
    alert.alertViewStyle = UIAlertViewStylePlainTextInput;
    [alert show];
}

@end
