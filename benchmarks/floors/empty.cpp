// The least that starting a program costs.

int main()
{
    return 0;
}
