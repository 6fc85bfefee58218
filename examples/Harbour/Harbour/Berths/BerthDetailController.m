#import "BerthDetailController.h"

#import "Berth.h"

@implementation BerthDetailController {
    Berth *_berth;
    UILabel *_shoreLabel;
}

- (instancetype)initWithBerth:(Berth *)berth {
    if ((self = [super initWithNibName:nil bundle:nil])) {
        _berth = berth;
    }
    return self;
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _shoreLabel.text = NSLocalizedString(@"Shore power", @"Row of the berth's details");
    [self addRow:NSLocalizedString(@"Fresh water", @"Row of the berth's details") on:YES];
    [self addRow:NSLocalizedString(@"Moor stern to", @"Row of the berth's details") on:NO];
}

- (void)reserve:(id)sender {
    if (_berth.state == BerthOccupied) {
        [self tell:[NSString stringWithFormat:NSLocalizedString(@"Berth \"%@\" is taken.", @"Alert; %@ is the berth's name"),
                                              _berth.name]];
        return;
    }
    [self tell:NSLocalizedString(@"Reserved until noon tomorrow.", @"Alert after a reservation")];
}

- (void)showRules:(id)sender {
    NSArray *rules = @[
        NSLocalizedString(@"1) Engine off after ten in the evening", @"House rule"),
        NSLocalizedString(@"Halyards tied off, please", @"House rule"),
        NSLocalizedString(@"Dogs on a lead", nil),
    ];
    [self tell:[rules componentsJoinedByString:@"\n"]];
}

- (void)addRow:(NSString *)title on:(BOOL)on {
    UISwitch *row = [[UISwitch alloc] init];
    row.accessibilityLabel = title;
    row.on = on;
    [self.view addSubview:row];
}

- (void)tell:(NSString *)text {
    [[[UIAlertView alloc] initWithTitle:_berth.name
                                message:text
                               delegate:nil
                      cancelButtonTitle:NSLocalizedString(@"OK", @"Closes an alert")
                      otherButtonTitles:nil] show];
}

@end
