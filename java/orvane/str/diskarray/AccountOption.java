package orvane.str.diskarray;

public class AccountOption {
    public AccountOptionInfo option_info;
    public AccountAdditionalInfo additional_info;
}
